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
    giris_.MevzuatUygun();
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

void brdhazir::GovdeYap() {
  SikDiz();
  auto* orta = new QHBoxLayout;
  orta->setSpacing(5);  // all four columns stand in a window of 1280
  const auto sutun = [&](const std::vector<AlanGrubu>& gruplar) {
    auto* dikey = new QVBoxLayout;
    for (const AlanGrubu& grup : gruplar) dikey->addWidget(GrupYap(grup));
    dikey->addStretch(1);
    orta->addLayout(dikey);
    return dikey;
  };
  sutun({GunGrubu()});
  sutun({YardimGrubu(giris_.Kosul().firma.yardimlar)});
  sutun(OzetGruplari());
  // What is typed comes before what follows from it, in the order of Tab too.
  auto* eksikGun = GrupYap(EksikGunGrubu());
  sutun(AyrintiGruplari())->insertWidget(0, eksikGun);
  Govde()->addLayout(orta);
  kusur_->setProperty("hata", true);
  Alt()->addWidget(kusur_);
  muafiyet_->setProperty("soluk", true);
  Alt()->addWidget(muafiyet_);
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
