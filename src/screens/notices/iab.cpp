#include "screens/notices/iab.h"

#include <QGroupBox>

#include "core/store/koru.h"
#include "notices/iabkagidi.h"
#include "personnel/kart.h"
#include "ui/basim.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int AdSoyadHarfi = sicil::adi.boyut + 1 + sicil::soyadi.boyut;
constexpr int GorevHarfi = 40;
constexpr double EnCokGun = 99'999;

AlanGrubu PersonelGrubu() {
  return {"Personel",
          {{iabformu::kod, "Personel Kodu", {.anahtar = true}},
           {Uye("adsoyad", &IabFormu::adsoyad, AdSoyadHarfi), "Ad Soyad", {.harf = 34}},
           {Uye("sskno", &IabFormu::sskno, sicil::sskno.boyut), "SSK No"},
           {Uye("tcno", &IabFormu::tcno, kimlik::tcno.boyut), "T.C. No"},
           {Uye("dogtar", &IabFormu::dogtar), "D.Tarihi"},
           {Uye("dogyer", &IabFormu::dogyer, kimlik::dogyer.boyut), "D.Yeri"}},
          2};
}

AlanGrubu AyrilmaGrubu() {
  return {"İşten Ayrılma",
          {{iabformu::girtar, "Giriş Tarihi"},
           {iabformu::ciktar, "Çıkış Tarihi"},
           {Uye("cikissebebi", &IabFormu::cikissebebi, sicil::cikissebebi.boyut), "Ç.Nedeni"},
           {Uye("gorevi", &IabFormu::gorevi, GorevHarfi), "Görevi", {.harf = 30}},
           {Uye("sonNet", &IabFormu::sonNet), "Son Net Ücret", {.ondalik = ParaOndalik, .enCok = 99'999'999'999.0}},
           {Uye("issizlikGunu", &IabFormu::issizlikGunu),
            "Son 3 Yıllık İşsizlik Sigortası Günü",
            {.enCok = EnCokGun, .harf = 8}},
           {iabformu::duzenleme, "Düzenleme Tarihi"},
           {Uye("teblig", &IabFormu::teblig), "Sigortalıya Tebliğ Tarihi"}},
          2};
}

// To be read, not typed.
std::vector<SatirKolonu<IabKaydi>> BelgeKolonlari(int paraonda) {
  auto kolonlar = std::vector{UyeKolonu("yil", "Yıl", 70, &IabKaydi::yil), UyeKolonu("ay", "Ay", 110, &IabKaydi::ay),
                              UyeKolonu("pek", "Kazanç", 130, &IabKaydi::pek, {.ondalik = paraonda}),
                              UyeKolonu("gun", "Gün", 60, &IabKaydi::gun),
                              UyeKolonu("ekseb", "Eksik Gün Sebebi", 260, &IabKaydi::ekseb)};
  kolonlar[0].metin = [](const IabKaydi& k, std::size_t) { return std::to_string(k.yil); };
  return kolonlar;
}

}  // namespace

iab::iab(EkranBaglami& baglam)
    : PersonelFormu(baglam, "iab", QStringLiteral("İşten Ayrılma Bildirgesi (İAB)")),
      liste_(new dclist(baglam.bildirim, this)),
      tablo_(*liste_, BelgeKolonlari(baglam.oturum.firma.paraonda)) {
  Yerlestir();
  Komutlar({{.tus = Qt::Key_F8, .dugme = " Yazıcıya Yazdır", .simge = "yazici", .islev = [this] { Yazdir(); }}});
  PersonelKomutlari(iabformu::kod);
  for (const AlanTutamagi alan : {AlanTutamagi(iabformu::ciktar), AlanTutamagi(iabformu::duzenleme)})
    connect(&YaziKutusu(alan), &xtext::Ayrildi, this, [this] { TarihDegisti(); });
  form_.duzenleme = Tarih::Bugun();
  Goster();
}

void iab::Yerlestir() {
  SikDiz();
  Govde()->addWidget(GrupYap(PersonelGrubu()));
  Govde()->addWidget(GrupYap(AyrilmaGrubu()));
  uyarilar_ = YaziEkle({}, "hata");
  uyarilar_->setObjectName("uyarilar");
  QSizePolicy yeri = uyarilar_->sizePolicy();
  yeri.setRetainSizeWhenHidden(true);  // the person who has something to be told comes up later
  uyarilar_->setSizePolicy(yeri);
  auto* kutu = new QGroupBox(QStringLiteral("Son 120 Gün Kayıtları"), this);
  auto* duzen = new QVBoxLayout(kutu);
  liste_->setObjectName("dclist1");
  duzen->setContentsMargins(8, 4, 8, 4);
  duzen->addWidget(liste_);
  SatirlaraYerAc(*liste_, int(IabKayitSayisi));
  Govde()->addWidget(kutu, 1);
}

void iab::showEvent(QShowEvent* olay) {
  aciliyor_ = true;
  PersonelFormu::showEvent(olay);
  aciliyor_ = false;
}

// The paper's own date stays with the next person.
bool iab::Getir(const std::string& kod) {
  Motor& motor = Oturumu().depo.db.IcMotor();
  const Tarih duzenleme = Okunan().duzenleme;
  const auto bulunan = Koru([&] {
    auto form = KisiDoldur(motor, kod);
    if (form) {
      form->duzenleme = duzenleme;
      IabKayitlari(motor, *form);
    }
    return form;
  });
  if (!Oldu(bulunan) || !*bulunan) return false;
  form_ = **bulunan;
  Goster();
  return true;
}

// A code that nobody has leaves what is on the screen.
bool iab::Bul(const std::string& kod) {
  if (!Getir(kod)) {
    AnahtarKoy(form_.kod);
    Bildir(KuralKusuru("Bu Kodda Personel Yok: " + kod, iabformu::kod));
    return false;
  }
  if (!aciliyor_)
    for (const Kusur& uyari : IabUyarilari(form_)) Bildirimi().KusuruGoster(uyari);
  return true;
}

void iab::Git(Yon yon) {
  if (const auto kart = KartGit(Oturumu(), yon, SonAnahtar())) Getir(kart->kod);
}

void iab::Goster() {
  Yukle(form_);
  tablo_.Doldur(form_.kayitlar);
  AnahtarKoy(form_.kod);
  QStringList metinler;
  if (!form_.kod.empty())
    for (const Kusur& uyari : IabUyarilari(form_)) metinler += Yazi(uyari.metin);
  uyarilar_->setText(metinler.join(QStringLiteral(" · ")));
  uyarilar_->setVisible(!metinler.isEmpty());
  AlaniSec();
}

// With what stands in the fields; a text that is no date counts as none.
IabFormu iab::Okunan() const {
  IabFormu form = form_;
  for (const auto& d : Denetimler())
    if (d->Satir().tanim.ad != iabformu::kod.ad) d->Satir().yaz(&form, d->Oku());
  return form;
}

void iab::TarihDegisti() {
  IabFormu form = Okunan();
  if (form.kod.empty() || (form.ciktar == form_.ciktar && form.duzenleme == form_.duzenleme)) return;
  if (!Oldu(Koru([&] {
        IabKayitlari(Oturumu().depo.db.IcMotor(), form);
        return true;
      })))
    return;
  form_ = std::move(form);
  Goster();
}

// An unknown code was told, and whoever is on the screen is another person.
void iab::Yazdir() {
  const std::string yazilan = YazilanAnahtar();
  if (!EkrandakiMi() || (!yazilan.empty() && yazilan != SonAnahtar())) return;
  TarihDegisti();
  if (!AlanlarSaglam(typeid(IabFormu))) return;
  BelgeBas(Baglam(), *IabBelgesi({.form = Okunan(), .firma = Oturumu().firma}));
}

}  // namespace belvani
