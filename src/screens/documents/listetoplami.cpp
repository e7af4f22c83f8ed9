#include "screens/documents/listetoplami.h"

#include <QGridLayout>
#include <QLabel>

#include "ui/metin.h"

namespace belvani {
namespace {

// What the row of the paper says, or one line of everything that is summed.
BelgeListesi Duzeni(const BelgeListesi& tanim, const Rapor& rapor) {
  if (!tanim.sutunlar.empty() || !rapor.ToplamVar()) return tanim;
  BelgeListesi duzen{.toplamlar = {"Toplam"}};
  for (const RaporKolonu& kolon : rapor.Kolonlar())
    if (kolon.toplanir) duzen.sutunlar.push_back({kolon.kisaBaslik, {kolon.Adi()}});
  return duzen;
}

std::string ToplamMetni(const Rapor& rapor, const std::vector<Hucre>& toplamlar, std::string_view ad) {
  const auto yer = std::ranges::find(rapor.Kolonlar(), ad, &RaporKolonu::Adi);
  if (yer == rapor.Kolonlar().end()) return {};
  return HucreMetni(toplamlar[std::size_t(yer - rapor.Kolonlar().begin())], *yer);
}

}  // namespace

ListeToplami::ListeToplami(const BelgeListesi& tanim, QWidget* ust)
    : QWidget(ust), tanim_(tanim), izgara_(new QGridLayout(this)) {
  setObjectName("toplamlar");
  izgara_->setContentsMargins(0, 0, 0, 0);
  izgara_->setHorizontalSpacing(24);
  izgara_->setVerticalSpacing(2);
}

void ListeToplami::Goster(const Rapor& rapor) {
  while (QLayoutItem* eski = izgara_->takeAt(0)) {
    delete eski->widget();
    delete eski;
  }
  const auto yaz = [&](int satir, int sutun, const std::string& metin, const char* gorunus, Qt::Alignment hiza) {
    auto* etiket = new QLabel(Yazi(metin), this);
    if (*gorunus != '\0') etiket->setProperty(gorunus, true);
    etiket->setTextInteractionFlags(Qt::TextSelectableByMouse);
    izgara_->addWidget(etiket, satir, sutun, hiza);
    return etiket;
  };
  yaz(0, 0, std::to_string(rapor.Satirlar().size()) + " kayıt", "soluk", Qt::AlignLeft)->setObjectName("kayitSayisi");
  const BelgeListesi duzen = Duzeni(tanim_, rapor);
  const std::vector<Hucre> toplamlar = rapor.Toplam();
  for (std::size_t satir = 0; satir < duzen.toplamlar.size(); ++satir)
    yaz(int(satir) + 1, 0, std::string(duzen.toplamlar[satir]), "baslik", Qt::AlignLeft);
  int sutun = 0;
  for (const ToplamSutunu& s : duzen.sutunlar) {
    yaz(0, ++sutun, std::string(s.baslik), "soluk", Qt::AlignRight);
    int satir = 0;
    for (const std::string_view ad : s.kolonlar)
      yaz(++satir, sutun, ToplamMetni(rapor, toplamlar, ad), "toplam", Qt::AlignRight)
          ->setObjectName("toplam." + Yazi(ad));
  }
  izgara_->setColumnStretch(sutun + 1, 1);
}

}  // namespace belvani
