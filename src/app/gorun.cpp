#include "app/gorun.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QPainter>

#include "ui/dclist.h"
#include "ui/metin.h"
#include "ui/renk.h"
#include "ui/resim.h"
#include "ui/simge.h"
#include "ui/stil.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int RenkSutunu = 3;
constexpr QSize SwatchBoyu(30, 18);

QIcon RenkSimgesi(const QColor& renk) {
  QPixmap resim(SwatchBoyu * 2);  // sharp on high-density screens
  resim.setDevicePixelRatio(2);
  resim.fill(Qt::transparent);
  QPainter boya(&resim);
  boya.setRenderHint(QPainter::Antialiasing);
  boya.setPen(QApplication::palette().color(QPalette::Mid));
  boya.setBrush(renk.alpha() == 0 ? QBrush(QApplication::palette().color(QPalette::Mid), Qt::BDiagPattern)
                                  : QBrush(renk));
  boya.drawRoundedRect(QRectF(QPointF(), SwatchBoyu).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  return QIcon(resim);
}

// A colour of the workstation file; no colour: what the look in force gives.
QGroupBox* Kutu(const char* baslik, QWidget* ust, QLayout* duzen) {
  auto* kutu = new QGroupBox(QString::fromUtf8(baslik), ust);
  kutu->setLayout(duzen);
  return kutu;
}

}  // namespace

gorun::gorun(EkranBaglami& baglam, std::function<void(const GorunumAyari&)> goster)
    : Form(baglam, "gorun", QStringLiteral("Görünüm Ayarları")),
      goster_(goster ? std::move(goster) : [](const GorunumAyari&) {}),
      ilk_{GorunumOku(baglam.oturum), {}, GridYazilariOku()} {
  ilk_.renkler = GecerliRenkler(baglam.oturum, ilk_.ayar);
  secim_ = ilk_;
  auto* yatay = new QHBoxLayout;
  yatay->setSpacing(12);
  auto* sol = new QVBoxLayout;
  for (QWidget* parca : {RenkleriYap(), HazirlariYap(), YazilariYap()}) sol->addWidget(parca);
  sol->addStretch(1);
  auto* sag = new QVBoxLayout;
  for (QWidget* parca : {AnaPencereYap(), OrnekYap()}) sag->addWidget(parca);
  sag->addStretch(1);
  yatay->addLayout(sol);
  yatay->addLayout(sag);
  Govde()->addLayout(yatay);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
  for (const auto& tazele : tazelenecek_) tazele();
  findChild<QPushButton*>("renk0")->setFocus();
}

QPushButton* gorun::RenkDugmesi(const QString& baslik, const std::function<QColor()>& oku,
                                const std::function<void(std::uint32_t)>& yaz) {
  xButton* dugme = DugmeYap(baslik, {}, [this, oku, yaz] {
    const auto renk = Baglam().dialoglar.RenkSec(RenkSayisi(oku()));
    if (!renk) return;
    yaz(*renk & EnBuyukRenk);
    Onizle();
  });
  dugme->setProperty("renk", true);
  dugme->setIconSize(SwatchBoyu);
  tazelenecek_.push_back([dugme, oku] { dugme->setIcon(RenkSimgesi(oku())); });
  return dugme;
}

QWidget* gorun::RenkleriYap() {
  auto* izgara = new QGridLayout;
  izgara->setHorizontalSpacing(8);
  izgara->setVerticalSpacing(5);
  const int satirSayisi = (int(std::size(RenkSecimleri)) + RenkSutunu - 1) / RenkSutunu;
  int sira = 0;
  for (const RenkSecimi& s : RenkSecimleri) {
    const auto yer = std::size_t(s.renk);
    QPushButton* dugme = RenkDugmesi(
        Yazi(s.baslik), [this, yer] { return RenkYap(secim_.renkler[yer]); },
        [this, yer](std::uint32_t renk) { RenkSec(yer, renk); });
    dugme->setObjectName("renk" + QString::number(yer));
    izgara->addWidget(dugme, sira % satirSayisi, sira / satirSayisi);
    ++sira;
  }
  return Kutu("Renkler", this, izgara);
}

void gorun::RenkSec(std::size_t sira, std::uint32_t renk) {
  secim_.renkler[sira] = renk;
  if (sira == std::size_t(Renk::FormArka)) secim_.ayar.formbackcolor = RenkMetni(renk);
}

QWidget* gorun::HazirlariYap() {
  auto* duzen = new QHBoxLayout;
  const auto ekle = [&](const char* ad, const char* nesne, const std::function<void()>& islev) {
    xButton* dugme = DugmeYap(QString::fromUtf8(ad), {}, islev);
    dugme->setObjectName(nesne);
    duzen->addWidget(dugme);
  };
  ekle("Açık", "acik", [this] { TabloKoy(AcikRenkler(), GorunumAyari().backcolor); });
  ekle("Koyu", "koyu", [this] {
    const RenkTablosu koyu = KoyuRenkler();
    TabloKoy(koyu, RenkMetni(RenkAl(koyu, Renk::PencereArka)));
  });
  duzen->addStretch(1);
  return Kutu("Hazır Tablolar", this, duzen);
}

// A ready table brings the main window's colours that go with it.
void gorun::TabloKoy(const RenkTablosu& tablo, const std::string& zemin) {
  const GorunumAyari varsayilan;
  secim_.renkler = tablo;
  secim_.ayar.backcolor = zemin;
  secim_.ayar.formbackcolor = varsayilan.formbackcolor;
  secim_.ayar.labelback = varsayilan.labelback;
  secim_.ayar.labelfore = varsayilan.labelfore;
  Onizle();
}

QWidget* gorun::YazilariYap() {
  auto* izgara = new QGridLayout;
  const auto ekle = [&](int satir, const char* ad, const char* nesne, YaziTipi& yazi) {
    xButton* dugme = DugmeYap(QString::fromUtf8(ad), {}, [this, &yazi] {
      yazi = YaziSec(yazi);
      Onizle();
    });
    dugme->setObjectName(nesne);
    auto* etiket = new QLabel(this);
    etiket->setProperty("soluk", true);
    tazelenecek_.push_back([etiket, &yazi] {
      const QString kalin = yazi.kalinlik == Kalinlik::Kalin ? QStringLiteral(", kalın") : QString();
      etiket->setText(Yazi(yazi.ad) + " " + QString::number(yazi.boyut) + kalin);
    });
    izgara->addWidget(dugme, satir, 0);
    izgara->addWidget(etiket, satir, 1);
  };
  ekle(0, " Başlık Font Ayarları ", "baslikfont", secim_.yazilar.baslik);
  ekle(1, " Grid Font Ayarları ", "gridfont", secim_.yazilar.detay);
  izgara->setColumnStretch(1, 1);
  return Kutu("Liste Yazıları", this, izgara);
}

// The chosen font, or the old one.
YaziTipi gorun::YaziSec(const YaziTipi& eski) {
  const auto font = Baglam().dialoglar.FontSec(FontYap(eski));
  if (!font) return eski;
  const int boyut = font->pointSize() > 0 ? font->pointSize() : eski.boyut;
  return {Utf8(font->family()), boyut, font->bold() ? Kalinlik::Kalin : Kalinlik::Normal};
}

QWidget* gorun::AnaPencereYap() {
  auto* izgara = new QGridLayout;
  GorunumAyari& ayar = secim_.ayar;
  const auto renk = [&](const char* ad, std::string GorunumAyari::*uye) {
    return RenkDugmesi(
        QString::fromUtf8(ad), [this, uye] { return AyarRengi(secim_.ayar.*uye); },
        [this, uye](std::uint32_t r) { secim_.ayar.*uye = RenkMetni(r); });
  };
  izgara->addWidget(renk("Zemin Rengi", &GorunumAyari::backcolor), 0, 0);
  izgara->addWidget(renk("Şirket Adı Zemini", &GorunumAyari::labelback), 0, 1);
  izgara->addWidget(renk("Şirket Adı Yazısı", &GorunumAyari::labelfore), 1, 0);
  xButton* font = DugmeYap(QStringLiteral("Şirket Adı Fontu"), {}, [this] {
    const YaziTipi yazi = YaziSec({secim_.ayar.labelfont, secim_.ayar.labelfontsize, Kalinlik::Normal});
    secim_.ayar.labelfont = yazi.ad;
    secim_.ayar.labelfontsize = yazi.boyut;
    Onizle();
  });
  font->setObjectName("labelfont");
  izgara->addWidget(font, 1, 1);
  izgara->addWidget(ResimSatiriYap(), 2, 0, 1, 2);
  const auto kutu = [&](int satir, const char* ad, const char* nesne, bool& deger) {
    auto* parca = new QCheckBox(QString::fromUtf8(ad), this);
    parca->setObjectName(nesne);
    Izle(parca);
    connect(parca, &QCheckBox::clicked, this, [this, &deger](bool secili) {
      deger = secili;
      Onizle();
    });
    tazelenecek_.push_back([parca, &deger] { parca->setChecked(deger); });
    izgara->addWidget(parca, satir, 0, 1, 2);
  };
  kutu(3, "Arka plan resmi gösterilsin", "backresimvarmi", ayar.backresimvarmi);
  kutu(4, "Resimler kullanılsın", "imagekullan", ayar.imagekullan);
  izgara->addWidget(SetSatiriYap(), 5, 0, 1, 2);
  kutu(6, "Kaydedilmeyen değişiklikler sorulsun", "yazilansor", ayar.yazilansor);
  return Kutu("Ana Pencere", this, izgara);
}

// The sets by the names of their directories.
QWidget* gorun::SetSatiriYap() {
  auto* parca = new QWidget(this);
  auto* duzen = new QHBoxLayout(parca);
  duzen->setContentsMargins(0, 0, 0, 0);
  auto* etiket = new QLabel(QStringLiteral("Resim Seti"), parca);
  auto* setler = new QComboBox(parca);
  setler->setObjectName("imagepath");
  for (const std::string& set : ResimSetleri(Oturumu())) setler->addItem(Yazi(set).section('/', 1, 1), Yazi(set));
  etiket->setBuddy(setler);
  Izle(setler);
  connect(setler, &QComboBox::activated, this, [this, setler] {
    secim_.ayar.imagepath = Utf8(setler->currentData().toString());
    Onizle();
  });
  tazelenecek_.push_back(
      [this, setler] { setler->setCurrentIndex(std::max(0, setler->findData(Yazi(secim_.ayar.imagepath)))); });
  duzen->addWidget(etiket);
  duzen->addWidget(setler, 1);
  return parca;
}

QWidget* gorun::ResimSatiriYap() {
  auto* parca = new QWidget(this);
  auto* duzen = new QHBoxLayout(parca);
  duzen->setContentsMargins(0, 0, 0, 0);
  auto* etiket = new QLabel(QStringLiteral("Resim"), parca);
  resim_ = new xtext(parca);
  resim_->setObjectName("backresim");
  resim_->xTextBicim(xtext::Tip::Metin, 250);
  resim_->ButonKoy("Dosya Seç");
  etiket->setBuddy(resim_);
  Izle(resim_);
  connect(resim_, &xtext::Lookup, this, &gorun::ResimSec);
  connect(resim_, &xtext::Ayrildi, this, [this] {
    if (secim_.ayar.backresim == Utf8(resim_->text())) return;
    secim_.ayar.backresim = Utf8(resim_->text());
    Onizle();
  });
  tazelenecek_.push_back([this] { resim_->DegerKoy(secim_.ayar.backresim); });
  duzen->addWidget(etiket);
  duzen->addWidget(resim_, 1);
  return parca;
}

void gorun::ResimSec() {
  const auto dosya = Baglam().dialoglar.DosyaAc("Resim  Ekle", secim_.ayar.backresim, ResimFiltresi);
  resim_->setFocus();
  if (!dosya) return;
  secim_.ayar.backresim = *dosya;
  secim_.ayar.backresimvarmi = true;
  Onizle();
}

QWidget* gorun::OrnekYap() {
  auto* duzen = new QVBoxLayout;
  auto* liste = new dclist(Bildirimi(), this);
  liste->setObjectName("ornek");
  liste->CreateNewCaption('m', "kod", "Sicil No", 70);
  liste->CreateNewCaption('m', "adi", "Adı Soyadı", 150);
  liste->CreateNewCaption('b', "ucret", "Ücreti", 90);
  liste->GenisKolon("adi");
  constexpr std::array<std::array<const char*, 3>, 4> Satirlar{{{"001", "Işıl Çağlar", "1,250.00"},
                                                                {"002", "Gökçe Şahin", "693.00"},
                                                                {"003", "Ümit Öğüt", "2,480.50"},
                                                                {"004", "İpek Iğdır", "941.75"}}};
  for (const auto& satir : Satirlar) {
    const int yeni = liste->Add();
    for (int kolon = 0; kolon < int(satir.size()); ++kolon)
      liste->Text(yeni, kolon, QString::fromUtf8(satir[std::size_t(kolon)]));
  }
  liste->ChngSat(1);
  liste->setFixedHeight(136);
  Izle(liste);
  auto* alanlar = new QHBoxLayout;
  auto* yazi = new xtext(this);
  yazi->setText(QStringLiteral("Yazı alanı"));
  auto* kapali = new QLineEdit(QStringLiteral("Kapalı alan"), this);
  kapali->setReadOnly(true);
  kapali->setFocusPolicy(Qt::NoFocus);
  auto* hata = new QLabel(QStringLiteral("Hata"), this);
  hata->setProperty("hata", true);
  auto* toplam = new QLabel(QStringLiteral(" Toplam 5,365.25 "), this);
  toplam->setProperty("toplam", true);
  Izle(yazi);
  for (QWidget* parca : std::initializer_list<QWidget*>{yazi, kapali, hata, toplam}) alanlar->addWidget(parca);
  duzen->addWidget(liste);
  duzen->addLayout(alanlar);
  return Kutu("Örnek", this, duzen);
}

void gorun::Onizle() {
  degisti_ = true;
  SimgelerKullanilsin(secim_.ayar.imagekullan);
  SimgeSetiKoy(Yazi(Oturumu().PrgPath + secim_.ayar.imagepath));
  StilKur(*qApp, secim_.renkler, secim_.yazilar);
  goster_(secim_.ayar);
  for (const auto& tazele : tazelenecek_) tazele();
}

void gorun::GeriAl() {
  if (!std::exchange(degisti_, false)) return;
  SimgelerKullanilsin(ilk_.ayar.imagekullan);
  SimgeSetiKoy(Yazi(Oturumu().PrgPath + ilk_.ayar.imagepath));
  StilKur(*qApp, ilk_.renkler, ilk_.yazilar);
  goster_(ilk_.ayar);
}

void gorun::closeEvent(QCloseEvent* olay) {
  GeriAl();
  Form::closeEvent(olay);
}

void gorun::Kaydet() {
  secim_.ayar.backresim = Utf8(resim_->text());
  const RenkTablosu eski = std::exchange(Oturumu().Renkler, secim_.renkler);
  const std::string eskiSet = std::exchange(Oturumu().ResimYolu, secim_.ayar.imagepath);  // the colours lie in the set
  const auto yaz = [&]() -> Durum {
    if (auto d = RenkKaydet(Oturumu()); !d) return d;
    if (auto d = GridYazilariYaz(secim_.yazilar); !d) return d;
    return GorunumYaz(Oturumu(), secim_.ayar);
  };
  if (const Durum d = yaz(); !d) {
    Oturumu().Renkler = eski;
    Oturumu().ResimYolu = eskiSet;
    Bildir(d.Kusuru());
    return;
  }
  GorunumUygula(Oturumu(), secim_.ayar);
  Onizle();
  degisti_ = false;
  Kapat();
}

}  // namespace belvani
