#include "screens/deductions/ozgvharc.h"

#include <QKeyEvent>
#include <QTimer>

#include "core/sayi.h"
#include "core/session/renkler.h"
#include "core/turkce.h"
#include "ui/cakisma.h"
#include "ui/metin.h"
#include "ui/pencere.h"
#include "ui/renk.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int IlkYil = 1990, SonYil = 2100;

// As it is typed; leaving the field brings the year's list up.
struct HarcamaYili {
  std::string yil;
};
constexpr auto YilAlani = Uye("yil", &HarcamaYili::yil, 4);

std::vector<AlanGrubu> HarcamaGruplari() {
  return {{"Dönem", {{YilAlani, "Dönem Yıl", {.harf = 6, .kayitDisi = true}}}}};
}

std::vector<SatirKolonu<OgiHarcamasi>> Kolonlar(int paraonda) {
  const auto tutar = [&](const char* ad, const char* baslik, int en, Tutar Dvr::*uye) {
    const auto yol = [uye](auto& h) -> auto& {
      return h.dvr.*uye;
    };
    return UyeKolonuYap<OgiHarcamasi>(ad, baslik, en, yol, {.ondalik = paraonda});
  };
  const auto kod = [](auto& h) -> auto& {
    return h.dvr.kod;
  };
  auto hakedis = tutar("hakedis", "Hak Ediş", 130, &Dvr::ogitutar);
  hakedis.tip = 'b';
  hakedis.al = nullptr;
  return {UyeKolonuYap<OgiHarcamasi>("kod", "Sicil No", 100, kod, {.enCok = double(dvr::kod.boyut)}),
          {'m', "adsoy", "Adı Soyadı", 240, [](const OgiHarcamasi& h, std::size_t) { return h.adSoyad; }},
          tutar("gvmatrah", "Kum.G.V. Matrahı", 150, &Dvr::gvmatrah),
          tutar("harcama", "Harcama", 130, &Dvr::ogimatrah),
          std::move(hakedis)};
}

bool Kayitli(const OgiHarcamasi& h) {
  return !h.dvr.yilkod.empty();
}

}  // namespace

ozgvharc::ozgvharc(EkranBaglami& baglam)
    : Form(baglam, "ozgvharc", QStringLiteral("Özel Gider İndirimi Harcama Girişi")),
      liste_(new dclist(baglam.bildirim, this)),
      tablo_(*liste_, Kolonlar(baglam.oturum.firma.paraonda)) {
  AlanlariDiz({HarcamaGruplari()});
  AnahtarBagla(YilAlani, [this](const std::string& yil) { YilaGec(yil); });
  uyari_ = YaziEkle({}, "hata");
  uyari_->setWordWrap(true);
  ListeyiKur();
  Govde()->addWidget(liste_, 1);
  anlatim_ = YaziEkle({}, "soluk");
  YaziEkle(
      QStringLiteral("Listede: Enter düzeltir · Insert yeni satır ekler · F2 kişi bulur · Delete harcamayı siler, hak "
                     "ediş durur. Satırdan ayrılınca kaydedilir."),
      "soluk");
  const auto kaydet = [this] {
    if (liste_->OkUpdateData()) liste_->MoveNext();
  };
  Komutlar({{.komut = FormKomutu::Rehber, .islev = [this] { KisiBul(); }},
            {.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = kaydet}});
  kosullar_.yil = Oturumu().firma.firmayil;
  AnahtarKoy(std::to_string(kosullar_.yil));
  Doldur();
}

void ozgvharc::ListeyiKur() {
  liste_->setObjectName("liste");
  liste_->GenisKolon("adsoy");
  liste_->TercihBoyu(790, 360);
  liste_->Editable(true);
  liste_->SatirGuncelle = [this](int satir) { return SatirKaydet(satir); };
  liste_->SatirSil = [this](int satir) { return SatirSil(satir); };
  liste_->YeniSatir = [this](int satir) { SatiriKoy(satir, {}); };
  liste_->SatirSecildi = [this](int satir) { SatiriAnlat(satir); };
  liste_->Dogrula = [this](int satir, const QString& kolon, QString& metin) {
    if (kolon != "kod") return true;
    metin = Yazi(BuyukHarf(Kirp(Utf8(metin))));
    return KisiyiKoy(satir, Utf8(metin));
  };
  liste_->Tus = [this](const QKeyEvent& olay) { return ListeTusu(olay); };
  const int hakedis = liste_->Model().KolonBul(u"hakedis");
  liste_->Model().Renk = [this, hakedis](int satir, int kolon) -> std::optional<HucreRengi> {
    if (kolon != hakedis || Satiri(satir).dvr.ogitutar >= Tutar()) return std::nullopt;
    const RenkTablosu renkler = GecerliRenkler(Oturumu());
    return HucreRengi{RenkYap(RenkAl(renkler, Renk::HataArka)), RenkYap(RenkAl(renkler, Renk::HataText))};
  };
}

// What was refused, and told, is asked about like anything else that was typed.
bool ozgvharc::KendiligindenKaydet() {
  liste_->OkUpdateData();
  return true;
}

void ozgvharc::YilaGec(const std::string& yil) {
  const auto okunan = TamSayiOku(yil);
  if (!okunan || *okunan < IlkYil || *okunan > SonYil) {
    AnahtarKoy(std::to_string(kosullar_.yil));
    return Bildir(KuralKusuru(
        "Dönem Yıl " + std::to_string(IlkYil) + " ile " + std::to_string(SonYil) + " arasında olmalı", YilAlani));
  }
  kosullar_.yil = int(*okunan);
  Doldur();
}

void ozgvharc::Doldur() {
  KosullariTazele();
  const auto harcamalar = OgiHarcamalariOku(Oturumu(), kosullar_.yil);
  if (!Oldu(harcamalar)) return;
  satirlar_.clear();
  liste_->Model().TopluBasla();
  liste_->Clear();
  for (const OgiHarcamasi& h : *harcamalar) SatiriKoy(liste_->Add(), h);
  liste_->Model().TopluBitir();
  liste_->YazilaniUnut();
  if (!harcamalar->empty()) liste_->HucreyeGit(0, "harcama");
  SatiriAnlat(liste_->CurSat());
}

// Another screen may have saved table or parameters meanwhile.
void ozgvharc::KosullariTazele() {
  kosullar_ = OgiKosullariYukle(Oturumu(), kosullar_.yil);
  QStringList sozler;
  if (const auto engel = kosullar_.Engel()) sozler += Yazi(engel->metin);
  for (const std::string& uyari : kosullar_.uyarilar) sozler += Yazi(uyari);
  uyari_->setText(sozler.join('\n'));
  uyari_->setVisible(!sozler.isEmpty());
}

void ozgvharc::SatiriKoy(int satir, const OgiHarcamasi& harcama) {
  int kimlik = liste_->Model().Kimlik(satir);
  if (kimlik == 0) liste_->Model().KimlikKoy(satir, kimlik = ++sonKimlik_);
  satirlar_[kimlik] = harcama;
  tablo_.Goster(std::size_t(satir), harcama);
}

void ozgvharc::SatiriAnlat(int satir) {
  const bool anlatilir = satir >= 0 && Kayitli(Satiri(satir)) && Satiri(satir).dvr.ogimatrah > Tutar();
  anlatim_->setText(anlatilir ? Yazi(OgiHesapSatiri(kosullar_, Satiri(satir).dvr, Oturumu().firma.paraonda)) : " ");
}

int ozgvharc::KisininSatiri(std::string_view kod, int haric) const {
  for (int satir = 0; satir < liste_->ListCount(); ++satir)
    if (satir != haric && TurkceEsit(Utf8(liste_->TextByName(satir, "kod")), kod)) return satir;
  return -1;
}

bool ozgvharc::KisiyiKoy(int satir, const std::string& kod) {
  if (!kod.empty() && TurkceEsit(Satiri(satir).dvr.kod, kod)) return true;  // his row already
  if (!kod.empty() && KisininSatiri(kod, satir) >= 0) {
    Bildir(KuralKusuru("Bu personel listede var: " + kod));
    return false;
  }
  const auto kisi = OgiKisisiBul(Oturumu(), kosullar_.yil, kod);
  if (!kisi) {
    Bildirimi().KusuruGoster(kisi.Kusuru());
    return false;
  }
  OgiHarcamasi harcama{kisi->adSoyad, kisi->dvr.value_or(Dvr{})};
  if (!Kayitli(harcama)) harcama.dvr.kod = kod;
  SatiriKoy(satir, harcama);
  liste_->Model().Degisti(satir, true);
  return true;
}

// F2: the person's row, a new one where he has none.
void ozgvharc::KisiBul() {
  if (!liste_->OkUpdateData()) return;
  const int simdiki = liste_->CurSat();
  const auto kod = PersonelSec(Baglam(), simdiki < 0 ? "" : Utf8(liste_->TextByName(simdiki, "kod")));
  liste_->setFocus();
  if (!kod) return;
  int satir = KisininSatiri(*kod, -1);
  if (satir < 0) {
    satir = liste_->Add();
    SatiriKoy(satir, {});
    if (!KisiyiKoy(satir, BuyukHarf(Kirp(*kod)))) return;
  }
  liste_->HucreyeGit(satir, "harcama");
}

bool ozgvharc::SatirKaydet(int satir) {
  KosullariTazele();
  const OgiHarcamasi yazilan = tablo_.Oku(std::size_t(satir), Satiri(satir));
  if (Kirp(yazilan.dvr.kod).empty()) {
    Bildirimi().Bilgi("Personel Sicil Kodunu Giriniz.");
    return false;
  }
  Okunan<Dvr> kayit{.ilk = {}, .simdi = yazilan.dvr};
  if (Kayitli(Satiri(satir))) kayit.ilk = Satiri(satir).dvr;
  const auto sonuc = SorarakKaydet(Baglam(), *this, kayit,
                                   [this](const Okunan<Dvr>& k) { return OgiHarcamaKaydet(Oturumu(), kosullar_, k); });
  if (!sonuc) return false;
  SatiriKoy(satir, {yazilan.adSoyad, *sonuc});
  SatiriAnlat(satir);
  ZoomEfekt();
  QTimer::singleShot(0, liste_, [this] { HarcamayaGec(); });
  return true;
}

// Enter behind the last cell goes to the next row's first one; expenses are typed one below the other.
void ozgvharc::HarcamayaGec() {
  const int satir = liste_->CurSat();
  if (liste_->hasFocus() && satir >= 0 && liste_->CurrentCol() == 0 && Kayitli(Satiri(satir)))
    liste_->HucreyeGit(satir, "harcama");
}

// The record stays in the list, with its refund; a row that was never saved goes.
bool ozgvharc::SatirSil(int satir) {
  const OgiHarcamasi& harcama = Satiri(satir);
  if (!Kayitli(harcama)) return Bildirimi().SilinsinMi("Kayıt Silinecek Eminmisiniz ?", harcama.dvr.kod);
  const auto silinen = OgiHarcamaSil(Oturumu(), harcama.dvr.yilkod, Bildirimi());
  if (!Oldu(silinen) || !*silinen) return false;
  SatiriKoy(satir, {harcama.adSoyad, **silinen});
  SatiriAnlat(satir);
  ZoomEfekt(QStringLiteral("Harcama silindi"));
  return false;
}

// Keys of the screen that the list would keep for itself.
bool ozgvharc::ListeTusu(const QKeyEvent& olay) {
  if (olay.key() != Qt::Key_F2) return false;
  KisiBul();
  return true;
}

}  // namespace belvani
