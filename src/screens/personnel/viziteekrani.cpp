#include "screens/personnel/viziteekrani.h"

#include "core/turkce.h"
#include "ozluk/vizitekagidi.h"
#include "personnel/kart.h"
#include "ui/basim.h"
#include "ui/xtext.h"

namespace belvani {

ViziteEkrani::ViziteEkrani(EkranBaglami& baglam, const QString& kelime, const QString& baslik, ViziteTuru tur)
    : PersonelFormu(baglam, kelime, baslik), tur_(tur) {}

AlanGrubu ViziteEkrani::KisiGrubu() {
  return {"Sigortalı",
          {{viziteformu::kod, "Sicil No", {.anahtar = true}},
           {Uye("adSoyad", &ViziteFormu::adSoyad, ViziteFormu::AdSoyadHarfi), "Adı Soyadı"},
           {Uye("sskno", &ViziteFormu::sskno, sicil::sskno.boyut), "SSK Sicil No"},
           {viziteformu::girtar, "İşe Giriş Tarihi"},
           {viziteformu::ciktar, "İşten Çıkış Tarihi"}}};
}

AlanGrubu ViziteEkrani::TarihGrubu(const char* bugun, const char* vizite, bool bugunKapali) {
  return {"Vizite",
          {{Uye("bugun", &ViziteFormu::bugun), bugun, {.kapali = bugunKapali}}, {viziteformu::vizite, vizite}}};
}

void ViziteEkrani::Baslat() {
  Komutlar({{.tus = Qt::Key_F8, .dugme = " Yazıcıya Yazdır ", .simge = "yazici", .islev = [this] { Yazdir(); }}});
  PersonelKomutlari(viziteformu::kod);
  // The field is being left: a message would come in the middle of that, so it comes right after.
  connect(&YaziKutusu(viziteformu::vizite), &xtext::Ayrildi, this, &ViziteEkrani::ViziteTarihindenAyrildi,
          Qt::QueuedConnection);
  const Tarih bugun = Tarih::Bugun();
  Yukle(ViziteFormu{.bugun = bugun, .vizite = bugun, .saat = SimdikiSaat()});
  tablodaki_ = bugun;
}

bool ViziteEkrani::Bul(const std::string& kod) {
  const ViziteFormu onceki = Okunan();
  const bool ayniKisi = TurkceEsit(onceki.kod, kod) && kimlik_;
  auto kisi = KisiDoldur(Oturumu(), kod, onceki.bugun.Bos() ? Tarih::Bugun() : onceki.bugun);
  if (kisi) {
    if (tur_ != ViziteTuru::Sigortali && !onceki.vizite.Bos()) kisi->form.vizite = onceki.vizite;
    kimlik_ = std::move(kisi->kimlik);
    Yukle(kisi->form);
    AnahtarKoy(kisi->form.kod);
    KisiDegisti();
  }
  TabloyuYap(ayniKisi);
  AlaniSec();
  return kisi.has_value();
}

void ViziteEkrani::Git(Yon yon) {
  if (const auto kart = KartGit(Oturumu(), yon, SonAnahtar())) {
    AnahtarKoy(kart->kod);
    Bul(kart->kod);
  }
}

// A date that is none counts as an empty one: the table and the paper have their own words for it.
ViziteFormu ViziteEkrani::Okunan() const {
  ViziteFormu form;
  for (const auto& d : Denetimler())
    if (d->Satir().kayitTuru == typeid(ViziteFormu)) d->Satir().yaz(&form, d->Oku());
  return form;
}

// False: it cannot be made, which is told. Another person's months never stay.
bool ViziteEkrani::TabloyuYap(bool ayniKisi) {
  const ViziteFormu form = Okunan();
  tablodaki_ = form.vizite;
  const auto aylar = GunTablosuYap(Oturumu(), form);
  if (aylar)
    AylariGoster(*aylar, ayniKisi);
  else if (!ayniKisi)
    AylariGoster({}, false);
  return Oldu(aylar);
}

void ViziteEkrani::ViziteTarihindenAyrildi() {
  if (isVisible() && !SonAnahtar().empty() && Okunan().vizite != tablodaki_) TabloyuYap(true);
}

void ViziteEkrani::Yazdir() {
  if (!EkrandakiMi()) return;
  ViziteKagidi kagit = BosViziteKagidi(Oturumu(), tur_);
  kagit.form = Okunan();
  if (kagit.form.vizite != tablodaki_ && !TabloyuYap(true)) return;
  kagit.kimlik = kimlik_;
  if (!KagidaYaz(kagit)) return;
  Oldu(ViziteCiz(kagit));
  const auto belge = ViziteBelgesi(kagit);
  BelgeBas(Baglam(), *belge);
}

}  // namespace belvani
