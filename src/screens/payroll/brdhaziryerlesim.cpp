// Where everything of the payroll screen stands.
#include <QComboBox>
#include <QTimer>

#include "screens/payroll/brdhazir.h"
#include "screens/payroll/brdhaziralanlar.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int UyariAraligi = 600;  // ms, of the blinking warning
constexpr int KusurPayi = 20;      // dots, around the words of the line of faults

// Broken between words into lines of at most that width.
QString Katla(const QString& metin, const QFontMetrics& harfler, int en) {
  QStringList satirlar;
  for (const QString& satir : metin.split('\n')) {
    QString dolan;
    for (const QString& kelime : satir.split(' ')) {
      const QString uzun = dolan.isEmpty() ? kelime : dolan + ' ' + kelime;
      if (!dolan.isEmpty() && harfler.horizontalAdvance(uzun) > en)
        satirlar += std::exchange(dolan, kelime);
      else
        dolan = uzun;
    }
    satirlar += dolan;
  }
  return satirlar.join('\n');
}

}  // namespace

void brdhazir::UstSatirYap() {
  auto* kodSatiri = new QHBoxLayout;
  KodAlaniYap(kodSatiri);
  auto* satir = new QHBoxLayout;
  satir->setSpacing(10);
  for (const std::string_view ad : AyAdlari) ay_->addItem(Yazi(ad));
  ay_->setCurrentIndex(Oturumu().firma.firmaay - 1);
  for (const std::string_view ad : PuantajKaynaklari) kaynak_->addItem(Yazi(ad));
  BordroNoDoldur();
  const auto ekle = [&](const QString& ad, QWidget* parca) {
    satir->addWidget(new QLabel(ad, this));
    satir->addWidget(parca);
    Izle(parca);
  };

  auto* yil = new QLabel(QString::number(Oturumu().firma.firmayil), this);
  yil->setProperty("baslik", true);
  ekle(QStringLiteral("Dönem Ay,Yıl"), ay_);
  satir->addWidget(yil);
  ekle(QStringLiteral("Bordro No"), bordroNo_);
  satir->addStretch(1);
  ekle(QStringLiteral("Puantaj Kaynağı"), kaynak_);
  auto* puantaj = DugmeYap(QStringLiteral("Puantaj "), "puantaj", [this] { TopluHazirla(); });
  puantaj->setFocusPolicy(Qt::ClickFocus);
  satir->addWidget(puantaj);
  Govde()->addLayout(satir);
  Govde()->addLayout(kodSatiri);
  connect(ay_, &QComboBox::activated, this, [this](int sira) {
    if (!YazilanBirakilir()) return ay_->setCurrentIndex(giris_.Donem().ay - 1);
    giris_.AyDegistir(sira + 1);
    BordroNoDoldur();
    simdiki_ = nullptr;
    degisen_.clear();
    Goster();
    OdakVer(bordroalani::kod);
    Soyle(giris_.MevzuatUygun());
  });
}

// The code comes first in the walk of Enter.
void brdhazir::KodAlaniYap(QHBoxLayout* satir) {
  DenetimEkle(KodAlani(), this);
  satir->addWidget(new QLabel(QStringLiteral("Sicil No"), this));
  satir->addWidget(Denetim(bordroalani::kod).Parca());
  kisi_->setProperty("baslik", true);
  satir->addWidget(kisi_);
  satir->addWidget(uyari_);
  satir->addStretch(1);
}

// As wide as the fields above it; a label that breaks its lines itself would make the screen ask for more room than
// that.
void brdhazir::KusurYaz(const QString& metin) {
  kusur_->setText(Katla(metin, kusur_->fontMetrics(), girisler_->sizeHint().width() - KusurPayi));
  kusur_->setVisible(!metin.isEmpty());
}

void brdhazir::GovdeYap() {
  SikDiz();
  auto* orta = new QHBoxLayout;
  orta->setSpacing(5);  // all four columns stand in a window of 1280
  girisler_->setSpacing(5);
  const auto sutun = [&](QHBoxLayout* yeri, const std::vector<AlanGrubu>& gruplar) {
    auto* dikey = new QVBoxLayout;
    for (const AlanGrubu& grup : gruplar) dikey->addWidget(GrupYap(grup));
    dikey->addStretch(1);
    yeri->addLayout(dikey);
    return dikey;
  };
  // Lines that come and go stand below what is typed, where the columns beside it are longer: nothing scrolls for them.
  sutun(girisler_, {GunGrubu()})->insertWidget(1, muafiyet_);
  sutun(girisler_, {YardimGrubu(giris_.Kosul().firma.yardimlar)});
  auto* sol = new QVBoxLayout;
  sol->setSpacing(3);
  sol->addLayout(girisler_);
  sol->addWidget(kusur_);
  sol->addStretch(1);
  orta->addLayout(sol);
  kusur_->setProperty("hata", true);
  muafiyet_->setProperty("soluk", true);
  sutun(orta, OzetGruplari());
  // What is typed comes before what follows from it, in the order of Tab too.
  auto* eksikGun = GrupYap(EksikGunGrubu());
  sutun(orta, AyrintiGruplari())->insertWidget(0, eksikGun);
  Govde()->addLayout(orta);
  Alt()->addWidget(neden_);
  YaziKutusu(bordroalani::net).setProperty("toplam", true);
  YaziKutusu(bordroalani::brut).setProperty("toplam", true);
  for (const auto& d : Denetimler())
    if (SonucAlani(d->Satir())) d->Odak()->setFocusPolicy(Qt::ClickFocus);

  auto* yanip = new QTimer(this);
  connect(yanip, &QTimer::timeout, this, [this] {
    if (giris_.CalismaPaneli().has_value()) UyariRengi(!uyari_->property("hata").toBool());
  });
  yanip->start(UyariAraligi);
}

}  // namespace belvani
