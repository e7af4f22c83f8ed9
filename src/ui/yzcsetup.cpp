#include "ui/yzcsetup.h"

#include <QRadioButton>
#include <algorithm>

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

constexpr std::string_view SatirAdlari[] = {"22", "33", "44", "66", "70"};
constexpr std::string_view KopyaAdlari[] = {"1", "2", "3", "4", "5"};
constexpr std::string_view YonAdlari[] = {"Dikey", "Yatay"};
constexpr std::string_view ModAdlari[] = {"Grafik (Windows Mod)", "Dot Matrix (Dos Mod)"};
constexpr std::size_t VarsayilanSatir = 3;  // 66
constexpr int BaslikHarfi = 80;

std::vector<std::vector<AlanGrubu>> Gruplar() {
  return {{{"Belge", {{Uye("YzcBaslik", &Ayarlar::YzcBaslik, BaslikHarfi), "Başlık:", {.harf = 44}}}},
           {"",
            {{Uye("YzcBaslikYaz", &Ayarlar::YzcBaslikYaz), "Başlık Yazılsın"},
             {Uye("YzcTarihYaz", &Ayarlar::YzcTarihYaz), "Tarih Yazılsın"},
             {Uye("YzcSayfaNoYaz", &Ayarlar::YzcSayfaNoYaz), "Sayfa No Yazılsın"},
             {Uye("YzcSirketYaz", &Ayarlar::YzcSirketYaz), "Şirket Adı Yazılsın"}},
            2},
           {"Yazıcı",
            {{Uye("mod", &Ayarlar::mod), "Yöntem", {.liste = ModAdlari, .secenek = true}},
             {Uye("YzcYon", &Ayarlar::YzcYon), "Kağıt", {.liste = YonAdlari, .secenek = true}},
             {Uye("YzcSatir", &Ayarlar::YzcSatir), "Satır Sayısı", {.liste = SatirAdlari}},
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
  auto* sec = new xButton(QStringLiteral("Yazıcı &Seç"), "yazici", this);
  connect(sec, &QPushButton::clicked, this, [this] { YaziciSec(); });
  Izle(sec);
  satir->addWidget(sec);
  satir->addWidget(yazici_, 1);
  Govde()->addLayout(satir);
  DugmeEkle(QStringLiteral("&Tamam"), "yazici", [this] { Bitir(YzcKarar::Yazdir); })->setProperty("birincil", true);
  DugmeEkle(QStringLiteral("Ö&nizleme"), "ara", [this] { Bitir(YzcKarar::Onizle); });
  DugmeEkle(QStringLiteral("&PDF'e Kaydet"), "kaydet", [this] { Bitir(YzcKarar::PdfKaydet); });
  metinKaydet_ = DugmeEkle(QStringLiteral("&Dosyaya Kaydet"), "kaydet", [this] { Bitir(YzcKarar::MetinKaydet); });
  DugmeEkle(QStringLiteral("&Vazgeç"), "kapat", [this] { Kapat(); });
  TusBagla(Qt::Key_F8, QStringLiteral("Yazdır"), [this] { Bitir(YzcKarar::Yazdir); });
  TusBagla(Qt::Key_F6, QStringLiteral("Önizleme"), [this] { Bitir(YzcKarar::Onizle); });
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (alan.Satir().tanim.ad == "mod") KipDegisti();
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
  const auto modlar = Denetim("mod").Odaklar();
  modlar[0]->setEnabled(ayar_.YzcGrafikAcik);
  modlar[1]->setEnabled(ayar_.YzcDosAcik);
}

void yzcsetup::DestegiUygula() {
  Denetim("YzcBaslikYaz").Kapat(!destek_.baslik);
  Denetim("YzcTarihYaz").Kapat(!destek_.tarih);
  Denetim("YzcSayfaNoYaz").Kapat(!destek_.sayfaNo);
  Denetim("YzcSirketYaz").Kapat(!destek_.sirket);
}

// A drawn page has its own count of lines, a text page no orientation.
void yzcsetup::KipDegisti() {
  Ayarlar simdiki;
  if (!Oku(simdiki)) return;
  Denetim("YzcYon").Kapat(simdiki.mod == 1 || !destek_.yon);
  Denetim("YzcSatir").Kapat(simdiki.mod == 0 || !destek_.satir);
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
