#include "screens/personnel/kontfrm.h"

#include <QGroupBox>
#include <QLineEdit>

#include "payroll/hazirlik/sirketdenetimi.h"
#include "personnel/kimlik.h"
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
  liste_->TercihBoyu(700, 380);
  auto* kutu = new QGroupBox(QStringLiteral("Kontrol Sonucları"), this);
  auto* duzen = new QVBoxLayout(kutu);
  QLineEdit* arama = liste_->AramaKutusu(kutu);
  Izle(arama);
  duzen->addWidget(arama);
  duzen->addWidget(liste_, 1);
  Govde()->addWidget(kutu, 1);
  liste_->Secildi = [this](int satir) { Git(bulgular_.at(std::size_t(satir))); };
  Doldur();
  IlkOdak(liste_);
}

// What the whole company has comes before what its people have.
void kontfrm::Doldur() {
  struct Kontrol {
    Sonuc<Kusurlar> depo, sirket;
    Sonuc<std::vector<KontrolSatiri>> kisiler;
  };
  const auto kontrol = UzunIs(Baglam(), QStringLiteral("Personel kayıtları kontrol ediliyor…"), [this](Ilerleme& i) {
    i.Asama("Veritabanı okunuyor…");
    auto depo = DepoDenetle(Oturumu());
    return Kontrol{std::move(depo), SirketDenetle(Oturumu(), &i), KontrolRaporu(Oturumu(), &i)};
  });
  if (!kontrol || !Oldu(kontrol->depo) || !Oldu(kontrol->sirket) || !Oldu(kontrol->kisiler)) return;
  bulgular_ = *kontrol->depo;
  bulgular_.insert(bulgular_.end(), kontrol->sirket->begin(), kontrol->sirket->end());
  std::vector<KontrolSatiri> satirlar;
  for (const Kusur& k : bulgular_)
    satirlar.push_back({k.kod, k.kod.empty() ? "Firma" : KisiAdi(Oturumu(), k.kod), k.metin});
  for (const KontrolSatiri& k : *kontrol->kisiler) {
    if (k.kod.empty() && !bulgular_.empty()) continue;  // says that nothing was found
    satirlar.push_back(k);
    bulgular_.push_back({.metin = k.sonuc, .alan = k.alan, .kod = k.kod});
  }
  ListeDoldur(*liste_, satirlar, [](const KontrolSatiri& k) { return std::array{k.kod, k.adsoy, k.sonuc}; });
}

void kontfrm::Git(const Kusur& bulgu) {
  if (bulgu.alan || !bulgu.kod.empty()) Baglam().gosterici.KisiyeGit(bulgu.kod, bulgu.alan);
}

}  // namespace belvani
