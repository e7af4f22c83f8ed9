#include "screens/personnel/kontfrm.h"

#include <QGroupBox>
#include <QLineEdit>

#include "core/asama.h"
#include "payroll/hazirlik/sirketdenetimi.h"
#include "personnel/kimlik.h"
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
Sonuc<kontfrm::Bulunanlar> kontfrm::KontrolEt(Ilerleme& ilerleme) {
  Oturum& o = Oturumu();
  ilerleme.Asama("Veritabanı okunuyor…");
  const auto depo = DepoDenetle(o, &ilerleme);
  if (!depo) return depo.Kusuru();
  ilerleme.Asama("Kayıtlar okunuyor…");
  const auto sirket = SirketDenetle(o, &ilerleme);
  if (!sirket) return sirket.Kusuru();
  const auto kisiler = KontrolRaporu(o, &ilerleme);
  if (!kisiler) return kisiler.Kusuru();
  Bulunanlar bulunan{.bulgular = *depo, .satirlar = {}};
  bulunan.bulgular.insert(bulunan.bulgular.end(), sirket->begin(), sirket->end());
  Asama asama(&ilerleme, bulunan.bulgular.size());
  for (const Kusur& k : bulunan.bulgular) {
    asama.Adim();
    bulunan.satirlar.push_back({k.kod, k.kod.empty() ? "Firma" : KisiAdi(o, k.kod), k.metin});
  }
  for (const KontrolSatiri& k : *kisiler) {
    if (k.kod.empty() && !bulunan.bulgular.empty()) continue;  // says that nothing was found
    bulunan.satirlar.push_back(k);
    bulunan.bulgular.push_back({.metin = k.sonuc, .alan = k.alan, .kod = k.kod});
  }
  return bulunan;
}

void kontfrm::Doldur() {
  auto kontrol = UzunIs(Baglam(), QStringLiteral("Personel kayıtları kontrol ediliyor…"),
                        [this](Ilerleme& ilerleme) { return KontrolEt(ilerleme); });
  if (!kontrol) return Bildirimi().Bilgi("Kontrol yarıda kesildi.");
  if (!Oldu(*kontrol)) return;
  bulgular_ = std::move((*kontrol)->bulgular);
  ListeDoldur(*liste_, (*kontrol)->satirlar, [](const KontrolSatiri& k) {
    return std::array{k.kod, k.adsoy, k.sonuc};
  });
}

void kontfrm::Git(const Kusur& bulgu) {
  if (bulgu.alan || !bulgu.kod.empty()) Baglam().gosterici.KisiyeGit(bulgu.kod, bulgu.alan);
}

}  // namespace belvani
