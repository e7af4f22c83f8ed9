#include "ui/yzcsetup.h"

#include <QRadioButton>
#include <algorithm>

#include "printing/yazdir.h"
#include "ui/metin.h"
#include "ui/yazicisec.h"

namespace belvani {
namespace {

// The settings as the fields of the screen show them: lists by place.
struct Ayarlar {
  std::string YzcBaslik;
  std::uint8_t YzcSatir = 0, YzcKopya = 0, YzcYon = 0, mod = 0;
  bool YzcBaslikYaz = true, YzcTarihYaz = true, YzcSayfaNoYaz = true, YzcSirketYaz = true;
};

// The fields that others close, or that close others.
namespace alan {
constexpr auto BaslikYaz = Uye("YzcBaslikYaz", &Ayarlar::YzcBaslikYaz);
constexpr auto TarihYaz = Uye("YzcTarihYaz", &Ayarlar::YzcTarihYaz);
constexpr auto SayfaNoYaz = Uye("YzcSayfaNoYaz", &Ayarlar::YzcSayfaNoYaz);
constexpr auto SirketYaz = Uye("YzcSirketYaz", &Ayarlar::YzcSirketYaz);
constexpr auto Mod = Uye("mod", &Ayarlar::mod);
constexpr auto Yon = Uye("YzcYon", &Ayarlar::YzcYon);
constexpr auto Satir = Uye("YzcSatir", &Ayarlar::YzcSatir);
}  // namespace alan

constexpr std::string_view SatirAdlari[] = {"22", "33", "44", "66", "70"};
constexpr std::string_view KopyaAdlari[] = {"1", "2", "3", "4", "5"};
constexpr std::string_view YonAdlari[] = {"Dikey", "Yatay"};
constexpr std::string_view ModAdlari[] = {"Grafik (Windows Mod)", "Dot Matrix (Dos Mod)"};
constexpr std::size_t VarsayilanSatir = 3;  // 66
constexpr int BaslikHarfi = 80;

std::vector<std::vector<AlanGrubu>> Gruplar() {
  return {{{"Belge", {{Uye("YzcBaslik", &Ayarlar::YzcBaslik, BaslikHarfi), "Başlık:", {.harf = 44}}}},
           {"",
            {{alan::BaslikYaz, "Başlık Yazılsın"},
             {alan::TarihYaz, "Tarih Yazılsın"},
             {alan::SayfaNoYaz, "Sayfa No Yazılsın"},
             {alan::SirketYaz, "Şirket Adı Yazılsın"}},
            2},
           {"Yazıcı",
            {{alan::Mod, "Yöntem", {.liste = ModAdlari, .secenek = true}},
             {alan::Yon, "Kağıt", {.liste = YonAdlari, .secenek = true}},
             {alan::Satir, "Satır Sayısı", {.liste = SatirAdlari}},
             {Uye("YzcKopya", &Ayarlar::YzcKopya), "Kopya Sayısı", {.liste = KopyaAdlari}}}}}};
}

std::uint8_t SatirSirasi(int satir) {
  const auto yer = std::ranges::find(YzcSatirSecenekleri, satir);
  return std::uint8_t(yer == YzcSatirSecenekleri.end() ? VarsayilanSatir
                                                       : std::size_t(yer - YzcSatirSecenekleri.begin()));
}

}  // namespace

yzcsetup::yzcsetup(EkranBaglami& baglam, YzcAyarlari& ayar, const YzcDestegi& destek)
    : Form(baglam, "yzcsetup", QStringLiteral("Yazıcı Ayarları")),
      ayar_(ayar),
      destek_(destek),
      yazici_(new QLabel(this)) {
  ayar_.YzcTamam = false;
  AlanlariDiz(Gruplar());
  auto* satir = new QHBoxLayout;
  yazici_->setObjectName("yazici");
  yazici_->setWordWrap(true);
  satir->addWidget(DugmeYap(QStringLiteral("Yazıcı &Seç"), "yazici", [this] { YaziciSec(); }));
  satir->addWidget(yazici_, 1);
  Govde()->addLayout(satir);
  const auto bitir = [this](YzcKarar karar) { return [this, karar] { Bitir(karar); }; };
  xButton* tamam = nullptr;
  Komutlar(
      {{.dugme = "&Tamam", .simge = "yazici", .islev = bitir(YzcKarar::Yazdir), .dugmesi = &tamam},
       {.dugme = "Ö&nizleme", .simge = "ara", .islev = bitir(YzcKarar::Onizle)},
       {.dugme = "&PDF'e Kaydet", .simge = "kaydet", .islev = bitir(YzcKarar::PdfKaydet)},
       {.dugme = "&Dosyaya Kaydet", .simge = "kaydet", .islev = bitir(YzcKarar::MetinKaydet), .dugmesi = &metinKaydet_},
       {.komut = FormKomutu::Kapat, .dugme = "&Vazgeç"},
       {.tus = Qt::Key_F8, .ipucu = "Yazdır", .islev = bitir(YzcKarar::Yazdir)},
       {.tus = Qt::Key_F6, .ipucu = "Önizleme", .islev = bitir(YzcKarar::Onizle)}});
  tamam->setProperty("birincil", true);
  AlanDegisti = [this](AlanDenetimi& denetim) {
    if (denetim.Satir().Tutamak() == alan::Mod) KipDegisti();
  };
  Goster();
  DestegiUygula();
  KipDegisti();
  YaziciGoster();
}

void yzcsetup::Goster() {
  Yukle(Ayarlar{.YzcBaslik = ayar_.YzcBaslik,
                .YzcSatir = SatirSirasi(ayar_.YzcSatir),
                .YzcKopya = std::uint8_t(std::clamp(ayar_.YzcKopya, 1, YzcEnCokKopya) - 1),
                .YzcYon = std::uint8_t(ayar_.YzcYon == KagitYonu::Yatay ? 1 : 0),
                .mod = std::uint8_t(ayar_.YzcDosMod ? 1 : 0),
                .YzcBaslikYaz = ayar_.YzcBaslikYaz && destek_.baslik,
                .YzcTarihYaz = ayar_.YzcTarihYaz && destek_.tarih,
                .YzcSayfaNoYaz = ayar_.YzcSayfaNoYaz && destek_.sayfaNo,
                .YzcSirketYaz = ayar_.YzcSirketYaz && destek_.sirket});
  const auto modlar = Denetim(alan::Mod).Odaklar();
  modlar[0]->setEnabled(ayar_.YzcGrafikAcik);
  modlar[1]->setEnabled(ayar_.YzcDosAcik);
}

void yzcsetup::DestegiUygula() {
  Denetim(alan::BaslikYaz).Kapat(!destek_.baslik);
  Denetim(alan::TarihYaz).Kapat(!destek_.tarih);
  Denetim(alan::SayfaNoYaz).Kapat(!destek_.sayfaNo);
  Denetim(alan::SirketYaz).Kapat(!destek_.sirket);
}

// A drawn page has its own count of lines, a text page no orientation.
void yzcsetup::KipDegisti() {
  Ayarlar simdiki;
  if (!Oku(simdiki)) return;
  Denetim(alan::Yon).Kapat(simdiki.mod == 1 || !destek_.yon);
  Denetim(alan::Satir).Kapat(simdiki.mod == 0 || !destek_.satir);
  metinKaydet_->setEnabled(simdiki.mod == 1);
}

void yzcsetup::YaziciGoster() {
  const auto liste = YaziciListesi(Baglam().baski);
  if (!liste || liste->empty()) return yazici_->setText(QString::fromUtf8(YaziciYok));
  auto secilen = std::ranges::find(*liste, ayar_.yazici, &YaziciBilgisi::ad);
  if (secilen == liste->end()) secilen = std::ranges::find(*liste, true, &YaziciBilgisi::varsayilan);
  if (secilen == liste->end()) secilen = liste->begin();
  ayar_.yazici = secilen->ad;
  const std::string ek = secilen->bekleyen.empty() ? secilen->aciklama : secilen->bekleyen;
  yazici_->setText(Yazi(ek.empty() ? secilen->ad : secilen->ad + "  (" + ek + ")"));
}

void yzcsetup::YaziciSec() {
  if (const auto secilen = YaziciSecimi(Baglam(), ayar_.yazici)) ayar_.yazici = *secilen;
  YaziciGoster();
}

void yzcsetup::Bitir(YzcKarar karar) {
  Ayarlar yeni;
  if (!Oku(yeni)) return;
  ayar_.YzcBaslik = yeni.YzcBaslik;
  ayar_.YzcSatir = YzcSatirSecenekleri[yeni.YzcSatir];
  ayar_.YzcKopya = yeni.YzcKopya + 1;
  ayar_.YzcYon = yeni.YzcYon == 1 ? KagitYonu::Yatay : KagitYonu::Dikey;
  ayar_.YzcDosMod = yeni.mod == 1;
  ayar_.YzcBaslikYaz = yeni.YzcBaslikYaz;
  ayar_.YzcTarihYaz = yeni.YzcTarihYaz;
  ayar_.YzcSayfaNoYaz = yeni.YzcSayfaNoYaz;
  ayar_.YzcSirketYaz = yeni.YzcSirketYaz;
  ayar_.YzcTamam = karar == YzcKarar::Yazdir;
  karar_ = karar;
  Kapat();
}

}  // namespace belvani
