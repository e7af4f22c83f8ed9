#include "screens/personnel/kontfrm.h"

#include <QGroupBox>
#include <QLineEdit>

#include "personnel/kontrol.h"
#include "ui/listedoldur.h"
#include "ui/uzunis.h"

namespace belvani {

kontfrm::kontfrm(EkranBaglami& baglam)
    : Form(baglam, "kontfrm", QStringLiteral("Kontrol İşlemleri")), liste_(new dclist(baglam.bildirim, this)) {
  liste_->CreateNewCaption('m', "kod", "Kod", 90);
  liste_->CreateNewCaption('m', "adsoy", "Adı Soyadı", 240);
  liste_->CreateNewCaption('m', "sonuc", "Sonuç", 320);
  liste_->GenisKolon("sonuc");
  liste_->setMinimumSize(700, 380);
  auto* kutu = new QGroupBox(QStringLiteral("Kontrol Sonucları"), this);
  auto* duzen = new QVBoxLayout(kutu);
  QLineEdit* arama = liste_->AramaKutusu(kutu);
  Izle(arama);
  duzen->addWidget(arama);
  duzen->addWidget(liste_, 1);
  Govde()->addWidget(kutu, 1);
  liste_->Secildi = [this](int satir) { Baglam().gosterici.KisiyeGit(Utf8(liste_->TextByName(satir, "kod")), {}); };
  Doldur();
  IlkOdak(liste_);
}

void kontfrm::Doldur() {
  const auto kontrol = UzunIs(Baglam(), QStringLiteral("Personel kayıtları kontrol ediliyor…"),
                              [this](Ilerleme& ilerleme) { return KontrolRaporu(Oturumu(), &ilerleme); });
  if (!kontrol) return;
  if (!Oldu(*kontrol)) return;
  ListeDoldur(*liste_, **kontrol, [](const KontrolSatiri& k) { return std::array{k.kod, k.adsoy, k.sonuc}; });
}

}  // namespace belvani
