#include "screens/core/firlist.h"

#include <QHideEvent>
#include <QLineEdit>
#include <algorithm>

#include "payroll/hazirlik/topluhazirlik.h"
#include "printing/belge.h"
#include "printing/kolonlar.h"
#include "ui/basim.h"
#include "ui/kusurlistesi.h"
#include "ui/listedoldur.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

constexpr const char* ListeBasligi = "Firmalar Listesi";

const Kolonlar<SirketSatiri> kolonlar{
    {"Firma", 24, [](auto& s) { return s.ad; }},
    {"Ünvan", 60, [](auto& s) { return s.unvan; }},
    {"Dönem", 8, [](auto& s) { return s.Donem(); }},
};

// Empty: stopped, which was told, for half a list would pass for the whole.
std::optional<std::vector<SirketSatiri>> ListeyiOku(EkranBaglami& baglam) {
  auto liste = UzunIs(baglam, QStringLiteral("Firmalar okunuyor…"),
                      [&](Ilerleme& ilerleme) { return SirketListesi(baglam.oturum.DataPath, &ilerleme); });
  if (!liste) baglam.bildirim.Bilgi("Firma listesinin okunması yarıda kesildi.");
  if (!liste || !liste->empty()) return liste;
  if (const Durum erisim = VeriYolu(baglam.oturum.DataPath).Erisim(); !erisim)
    baglam.bildirim.KusuruGoster(erisim.Kusuru());
  return liste;
}

std::optional<RaporBelgesi> ListeBelgesi(EkranBaglami& baglam) {
  const auto liste = ListeyiOku(baglam);
  if (!liste) return std::nullopt;
  Rapor rapor = RaporYap(kolonlar, *liste, 2);
  rapor.baslik = rapor.ekranBasligi = ListeBasligi;
  YzcAyarlari ayar;
  ayar.YzcBaslik = ListeBasligi;
  ayar.YzcSirketYaz = false;
  GrafikDuzeni grafik;
  grafik.punto = 9;
  return RaporBelgesi(std::move(rapor), ayar, grafik);
}

// What became of the company, then what there is to say of its people.
void SatirlariEkle(std::vector<SirketKusuru>& satirlar, const SirketHazirligi& olan) {
  const auto ekle = [&](const char* hal, Derece derece) {
    satirlar.push_back(
        {olan.sirket.ad, {.metin = hal + std::string(olan.soz.empty() ? "" : ": ") + olan.soz, .derece = derece}});
  };
  switch (olan.hal) {
    case SirketHali::Hazirlandi:
      ekle("Hazırlandı", Derece::Bilgi);
      break;
    case SirketHali::Atlandi:
      ekle("Atlandı", Derece::Uyari);
      break;
    case SirketHali::Yapilamadi:
      ekle("Yapılamadı", Derece::Hata);
      break;
    case SirketHali::Baslanmadi:
      ekle("Başlanmadı, bordrosu değişmedi", Derece::Uyari);
      break;
  }
  for (const Kusur& sorun : olan.sorunlar) satirlar.push_back({olan.sirket.ad, sorun});
}

// Those that are not done come first.
void SonucuGoster(EkranBaglami& baglam, std::vector<SirketHazirligi> olanlar) {
  std::ranges::stable_sort(olanlar, {}, &SirketHazirligi::hal);
  std::vector<SirketKusuru> satirlar;
  for (const SirketHazirligi& olan : olanlar) SatirlariEkle(satirlar, olan);
  KusurlariGoster(baglam, std::move(satirlar), Yazi(TopluHazirlikOzeti(olanlar)));
}

}  // namespace

firlist::firlist(EkranBaglami& baglam)
    : Form(baglam, "firlist", QStringLiteral("Firma Listesi")),
      secici_(std::exchange(baglam.oturum.PencereTip, {}) == "pen"),
      liste_(new dclist(baglam.bildirim, this)) {
  aranan_ = liste_->AramaKutusu(this);
  aranan_->setObjectName("aranan");
  liste_->CreateNewCaption('m', "kod", "Firma", 160);
  liste_->CreateNewCaption('m', "unvan", "Ünvan", 240);
  liste_->CreateNewCaption('m', "donem", "Dönem", 80);
  liste_->CreateNewCaption('m', "icerde", "İçeride", 220);
  liste_->setObjectName("dclist1");
  liste_->GenisKolon("unvan");
  liste_->TercihBoyu(secici_ ? 740 : 900, 360);
  Govde()->addWidget(aranan_);
  Govde()->addWidget(liste_, 1);
  Izle(aranan_);
  setTabOrder(aranan_, liste_);
  secici_ ? SeciciYap() : CiktiKomutlari();
  ListeyiDoldur();
  IlkOdak(aranan_);
}

void firlist::SeciciYap() {
  liste_->SatirSecildi = [this](int satir) { Oturumu().SeciliKod = Utf8(liste_->TextByName(satir, "kod")); };
  liste_->Secildi = [this](int) { Sec(); };
  liste_->setFocusPolicy(Qt::NoFocus);  // its rows are walked from the search box
  ListedeGezin(*liste_);
  Komutlar({{.tus = Qt::Key_Return, .ipucu = "Seç", .islev = [this] { Sec(); }}});
}

void firlist::CiktiKomutlari() {
  const auto yazdir = [this] {
    if (auto belge = ListeBelgesi(Baglam())) BelgeBas(Baglam(), *belge);
  };
  const auto gonder = [this] {
    if (const auto belge = ListeBelgesi(Baglam())) BelgeExceleGonder(Baglam(), *belge);
  };
  liste_->CokSecimli();
  Komutlar({{.tus = Qt::Key_F6,
             .dugme = "Bordro Hazırla",
             .simge = "bordro",
             .ipucu = "Seçili şirketlerin çalışma ayı bordrosunu şablondan hazırlar",
             .islev = [this] { Hazirla(liste_->SeciliSatirlar()); },
             .ad = "secilenler"},
            {.tus = QKeySequence(Qt::SHIFT | Qt::Key_F6),
             .dugme = "Hepsini Hazırla",
             .simge = "calistir",
             .ipucu = "Listede görünen bütün şirketlerin çalışma ayı bordrosunu şablondan hazırlar",
             .islev = [this] { Hazirla(liste_->GorunenSatirlar()); },
             .ad = "hepsi"},
            {.tus = Qt::Key_F8, .dugme = "Yazdır", .simge = "yazici", .islev = yazdir},
            {.tus = Qt::Key_F9, .dugme = "Excel'e Gönder", .simge = "tablo", .islev = gonder}});
}

void firlist::ListeyiDoldur() {
  const std::string simdiki = Oturumu().SeciliKod;
  auto sirketler = ListeyiOku(Baglam());
  if (!sirketler) return;
  sirketler_ = std::move(*sirketler);
  ListeDoldur(*liste_, sirketler_, [](const SirketSatiri& s) {
    return std::array{s.ad, s.unvan, s.Donem(), IcerdekiMetni(s.icerde)};
  });
  const auto yer = std::ranges::find(sirketler_, simdiki, &SirketSatiri::ad);  // case told apart: another is another
  if (yer != sirketler_.end()) liste_->ChngSat(int(yer - sirketler_.begin()));
}

// Everything is asked before the first company.
void firlist::Hazirla(const std::vector<int>& satirlar) {
  if (satirlar.empty()) return Bildirimi().Bilgi("Listeden şirket seçiniz");
  std::vector<SirketSatiri> secilen;
  for (const int satir : satirlar) secilen.push_back(sirketler_[std::size_t(satir)]);
  const auto sirketler = CalismaAylari(Oturumu(), secilen);
  const auto soru = TopluHazirlikSorusu(Oturumu(), sirketler);
  if (!Oldu(soru) || !Bildirimi().Soru(*soru)) return;
  auto olanlar = UzunIs(Baglam(), QStringLiteral("Bordrolar hazırlanıyor…"),
                        [&](Ilerleme& ilerleme) { return SirketleriHazirla(Oturumu(), sirketler, &ilerleme); });
  if (olanlar) SonucuGoster(Baglam(), std::move(*olanlar));
}

void firlist::Sec() {
  if (liste_->CurSat() < 0) return;
  secildi_ = true;
  Kapat();
}

// Every other way out of the picker chooses nothing.
void firlist::hideEvent(QHideEvent* olay) {
  Form::hideEvent(olay);
  if (secici_ && !secildi_ && !olay->spontaneous()) Oturumu().SeciliKod.clear();
}

}  // namespace belvani
