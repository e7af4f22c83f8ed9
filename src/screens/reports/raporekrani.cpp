#include "screens/reports/raporekrani.h"

#include <QKeyEvent>
#include <algorithm>

#include "core/store/koru.h"
#include "core/turkce.h"
#include "documents/listebelgesi.h"
#include "screens/reports/alansecimi.h"
#include "ui/basim.h"
#include "ui/kodrehberi.h"
#include "ui/listedoldur.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int OnizlemeGecikmesi = 250;  // milliseconds after the last change
constexpr std::size_t OnizlemeSatiri = 20;
constexpr int ListeEni = 420, ListeBoyu = 120, EnAzOnizleme = 42;
constexpr auto AdAlani = Uye("ad", &RaporAdi::ad, 60);

}  // namespace

template <class Kolon>
RaporEkrani<Kolon>::RaporEkrani(EkranBaglami& baglam, const char* kelime, const QString& baslik,
                                std::vector<ListeKolonu> kolonlar)
    : Form(baglam, kelime, baslik), liste_(new dclist(baglam.bildirim, this)), onizleme_(new xgrid(this)) {
  ListeyiKur(std::move(kolonlar));
  onizlemeSaati_.setSingleShot(true);
  onizlemeSaati_.setInterval(OnizlemeGecikmesi);
  connect(&onizlemeSaati_, &QTimer::timeout, this, [this] { IsBitince(this, [this] { Onizle(); }); });
}

template <class Kolon>
void RaporEkrani<Kolon>::ListeyiKur(std::vector<ListeKolonu> kolonlar) {
  liste_->setObjectName("dclist1");
  for (const ListeKolonu& kolon : kolonlar)
    liste_->CreateNewCaption(kolon.tip, kolon.ad, QString::fromUtf8(kolon.baslik), kolon.en);
  liste_->TercihBoyu(ListeEni, ListeBoyu);
  liste_->SatirSecildi = [this](int satir) {
    if (satir >= 0 && satir < int(kolonlar_.size()) && !Form::Kaydedilmemis()) Yukle(kolonlar_[std::size_t(satir)]);
  };
  liste_->Tus = [this](const QKeyEvent& olay) {
    if (olay.key() != Qt::Key_Delete) return false;
    KolonSil();
    return true;
  };
  listeKolonlari_ = std::move(kolonlar);
}

template <class Kolon>
void RaporEkrani<Kolon>::Ac(const AlanSutunlari& alanlar) {
  AlanlariDiz(alanlar);
  KolonDugmeleri();
  Govde()->addWidget(liste_, 1);
  Izle(liste_);
  YaziEkle(QStringLiteral("Önizleme: raporun ilk satırları"), "soluk");
  onizleme_->setObjectName("onizleme");
  onizleme_->setMinimumHeight(EnAzOnizleme);
  Govde()->addWidget(onizleme_, 1);
  onizleme_->setFocusPolicy(Qt::ClickFocus);  // to look at
  KomutlariKur();
  AnahtarBagla(
      AdAlani, [this](const std::string& ad) { RaporGetir(ad); },
      [this](const std::string& ad) {
        return std::ranges::any_of(Raporlar(), [&](const auto& r) { return TurkceEsit(r, ad); });
      });
  AlanDegisti = [this](AlanDenetimi& alan) { AlanSecildi(alan); };
  Kolon ilk;
  ilk.alan = IlkAlan();
  Yukle(Baslayan(ilk));
}

// Above the list, not in the row of commands: they are about the design.
template <class Kolon>
void RaporEkrani<Kolon>::KolonDugmeleri() {
  auto* satir = new QHBoxLayout;
  const auto dugme = [&](const char* metin, const char* simge, const char* ipucu, auto islev) {
    xButton* yeni = DugmeYap(QString::fromUtf8(metin), simge, islev);
    yeni->setToolTip(QString::fromUtf8(ipucu));
    satir->addWidget(yeni);
  };
  dugme(" Yeni Kolon Ekle ", "yeni", "Insert", [this] { KolonEkle(); });
  dugme("Kolonu Değiştir", "duzelt", "F4", [this] { KolonDegistir(); });
  dugme(" Kolonu Sil ", "sil", "Listede Delete", [this] { KolonSil(); });
  dugme("Yukarı", "onceki", "Ctrl+Yukarı", [this] { KolonTasi(-1); });
  dugme("Aşağı", "sonraki", "Ctrl+Aşağı", [this] { KolonTasi(1); });
  satir->addStretch(1);
  dugme(" Raporu Sil ", "sil", "F7", [this] { RaporKaldir(); });
  Govde()->addLayout(satir);
}

template <class Kolon>
void RaporEkrani<Kolon>::KomutlariKur() {
  const auto ver = [this](void (RaporEkrani::*islev)(const std::shared_ptr<Belge>&)) {
    return [this, islev] {
      if (const std::shared_ptr<Belge> belge = BelgeYap()) (this->*islev)(belge);
    };
  };
  const auto listele = ver(&RaporEkrani::EkranaListele), yazdir = ver(&RaporEkrani::Yazdir),
             gonder = ver(&RaporEkrani::ExceleGonder);
  Komutlar({{.tus = Qt::Key_Insert, .islev = [this] { KolonEkle(); }},
            {.tus = Qt::Key_F4, .islev = [this] { KolonDegistir(); }},
            {.tus = Qt::CTRL | Qt::Key_Up, .islev = [this] { KolonTasi(-1); }},
            {.tus = Qt::CTRL | Qt::Key_Down, .islev = [this] { KolonTasi(1); }},
            {.komut = FormKomutu::Rehber, .islev = [this] { RaporSec(); }},
            {.komut = FormKomutu::Kaydet, .dugme = " Raporu Kaydet ", .islev = [this] { RaporKaydet(); }},
            {.komut = FormKomutu::Sil, .islev = [this] { RaporKaldir(); }},
            {.tus = Qt::Key_F6, .dugme = " Ekrana Listele ", .simge = "liste", .islev = listele},
            {.tus = Qt::Key_F8, .dugme = " Yazıcıya Yazdır ", .simge = "yazici", .islev = yazdir},
            {.tus = Qt::Key_F9, .dugme = " Excel'e Gönder ", .simge = "tablo", .islev = gonder}});
  connect(&YaziKutusu(AdAlani), &xtext::Lookup, this, [this] { RaporSec(); });
}

template <class Kolon>
void RaporEkrani<Kolon>::Listele(int simdiki) {
  ListeDoldur(*liste_, kolonlar_, [this](const Kolon& kolon) {
    std::vector<std::string> metinler;
    for (const ListeKolonu& k : listeKolonlari_) metinler.push_back(k.metin(kolon));
    return metinler;
  });
  if (simdiki >= 0 && simdiki < int(kolonlar_.size())) liste_->ChngSat(simdiki);
  OnizlemeYenile();
}

// Another field of the store brings its own head and width.
template <class Kolon>
void RaporEkrani<Kolon>::AlanSecildi(AlanDenetimi& alan) {
  if (alan.Satir().kayitTuru != typeid(Kolon)) {
    if (alan.Satir().kayitTuru != typeid(RaporAdi)) OnizlemeYenile();
    return;
  }
  if (alan.Satir().tanim.ad != AlanSecimiAdi) return;
  Kolon secilen;
  alan.Satir().yaz(&secilen, alan.Oku());
  const Kolon baslayan = Baslayan(secilen);
  for (const auto& d : Denetimler())
    if (d->Satir().kayitTuru == typeid(Kolon) && d.get() != &alan) d->Koy(d->Satir().oku(&baslayan));
}

template <class Kolon>
std::optional<Kolon> RaporEkrani<Kolon>::YazilanKolon() {
  Kolon kolon;
  if (!Oku(kolon)) return std::nullopt;
  if (const auto kusur = KolonKusuru(kolon)) {
    Bildir(*kusur);
    return std::nullopt;
  }
  return kolon;
}

template <class Kolon>
bool RaporEkrani<Kolon>::KolonEkle() {
  if (kolonlar_.size() >= EnCokKolon()) {
    Bildirimi().Bilgi("Bir raporda en çok " + std::to_string(EnCokKolon()) + " kolon olabilir");
    return false;
  }
  const auto kolon = YazilanKolon();
  if (!kolon) return false;
  kolonlar_.push_back(*kolon);
  YazilaniUnut();
  Listele(int(kolonlar_.size()) - 1);
  return true;
}

template <class Kolon>
void RaporEkrani<Kolon>::KolonDegistir() {
  const int satir = liste_->CurSat();
  if (satir < 0) return;
  const auto kolon = YazilanKolon();
  if (!kolon) return;
  kolonlar_[std::size_t(satir)] = *kolon;
  YazilaniUnut();
  Listele(satir);
}

template <class Kolon>
void RaporEkrani<Kolon>::KolonSil() {
  const int satir = liste_->CurSat();
  if (satir < 0) return;
  kolonlar_.erase(kolonlar_.begin() + satir);
  Listele(std::min(satir, int(kolonlar_.size()) - 1));
}

template <class Kolon>
void RaporEkrani<Kolon>::KolonTasi(int adim) {
  const int satir = liste_->CurSat(), hedef = satir + adim;
  if (satir < 0 || hedef < 0 || hedef >= int(kolonlar_.size())) return;
  std::swap(kolonlar_[std::size_t(satir)], kolonlar_[std::size_t(hedef)]);
  Listele(hedef);
}

template <class Kolon>
void RaporEkrani<Kolon>::RaporSec() {
  std::vector<KodSecenegi> secenekler;
  for (const std::string& ad : Raporlar())
    secenekler.push_back({ad, RaporDosyasiVar(Oturumu().DataPath, ad, Uzanti()) ? "" : "programla gelen"});
  const std::string simdiki = MetinDegeri(Denetim(AdAlani).Oku());
  if (const auto ad = KodSec(Baglam(), "Raporlar", secenekler, simdiki)) AnahtarAra(*ad);
}

template <class Kolon>
void RaporEkrani<Kolon>::RaporGetir(const std::string& ad) {
  const auto adlar = Raporlar();
  if (std::ranges::none_of(adlar, [&](const auto& r) { return TurkceEsit(r, ad); })) return;
  auto kolonlar = Al(ad);
  if (!Oldu(kolonlar)) return;
  kolonlar_ = kaydedilen_ = std::move(*kolonlar);
  YazilaniUnut();
  Listele(0);
}

template <class Kolon>
bool RaporEkrani<Kolon>::RaporKaydet() {
  const std::string ad(Kirp(MetinDegeri(Denetim(AdAlani).Oku())));
  if (const auto kusur = RaporAdiKusuru(ad)) {
    Bildir({.metin = kusur->metin, .alan = AdAlani, .derece = kusur->derece});
    return false;
  }
  const bool baskasi = ad != SonAnahtar() || kaydedilen_.empty();
  if (baskasi && RaporDosyasiVar(Oturumu().DataPath, ad, Uzanti()) &&
      !Bildirimi().Soru("Dosya Mevcut Üzerine Kaydedilsin mi?"))
    return false;
  if (!Oldu(Yaz(ad, kolonlar_))) return false;
  kaydedilen_ = kolonlar_;
  AnahtarKoy(ad);
  ZoomEfekt();
  return true;
}

// A column that is typed and in no list yet is part of the report.
template <class Kolon>
bool RaporEkrani<Kolon>::YazilaniKaydet() {
  if (Form::Kaydedilmemis() && !KolonEkle()) return false;
  return RaporKaydet();
}

template <class Kolon>
void RaporEkrani<Kolon>::RaporKaldir() {
  const std::string ad(Kirp(MetinDegeri(Denetim(AdAlani).Oku())));
  if (const auto kusur = RaporAdiKusuru(ad)) return Bildir({.metin = kusur->metin, .alan = AdAlani});
  if (!RaporDosyasiVar(Oturumu().DataPath, ad, Uzanti()))
    return Bildirimi().Bilgi("Silinecek rapor dosyası yok: " + ad + std::string(Uzanti()));
  if (!Bildirimi().Soru("Rapor silinecek: " + ad + "\nEminmisiniz ?")) return;
  if (!Oldu(RaporSil(Oturumu().DataPath, ad, Uzanti()))) return;
  kaydedilen_ = kolonlar_ = {};
  YazilaniUnut();
  Listele(-1);
  ZoomEfekt(QStringLiteral("Silindi"));
}

template <class Kolon>
void RaporEkrani<Kolon>::Onizle() {
  const RaporBicimi bicim{.enCokSatir = OnizlemeSatiri};
  auto rapor = Koru([&] { return RaporYap(bicim, true, nullptr); });
  if (rapor && *rapor) onizleme_->RaporKoy(std::make_shared<const Rapor>(std::move(**rapor)));
}

template <class Kolon>
std::unique_ptr<Belge> RaporEkrani<Kolon>::BelgeYap() {
  if (kolonlar_.empty()) {
    Bildirimi().Bilgi("Rapor Hazırlanmamış");
    return nullptr;
  }
  RaporAdi adi;
  if (!Oku(adi)) return nullptr;
  const RaporBicimi bicim{.baslik = adi.baslik.empty() ? adi.ad : adi.baslik, .aciklama = adi.aciklama};
  auto rapor = UzunIs(Baglam(), QStringLiteral("Rapor hazırlanıyor…"),
                      [&](Ilerleme& ilerleme) { return Koru([&] { return RaporYap(bicim, false, &ilerleme); }); });
  if (!rapor || !Oldu(*rapor) || !**rapor) return nullptr;
  auto belge = ListeBelgesi(std::move(***rapor), KagitYonu::Yatay, {}, {}, Oturumu().firma.unvan);
  if (belge->Kayitsiz()) Bildirimi().Bilgi("Rapora giren kayıt yok");
  return belge;
}

template <class Kolon>
void RaporEkrani<Kolon>::EkranaListele(const std::shared_ptr<Belge>& belge) {
  BelgeEkranaListele(Baglam(), belge);
}

template <class Kolon>
void RaporEkrani<Kolon>::Yazdir(const std::shared_ptr<Belge>& belge) {
  BelgeBas(Baglam(), *belge);
}

template <class Kolon>
void RaporEkrani<Kolon>::ExceleGonder(const std::shared_ptr<Belge>& belge) {
  BelgeExceleGonder(Baglam(), *belge);
}

template class RaporEkrani<OzlukKolonu>;
template class RaporEkrani<BordroKolonu>;

}  // namespace belvani
