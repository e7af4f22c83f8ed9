#include "screens/personnel/sigortakollari.h"

#include <QComboBox>
#include <QListView>
#include <QStandardItemModel>
#include <algorithm>

namespace belvani {

std::vector<std::string> SigortaKollari(const HesapTurleri& turler) {
  std::vector<std::string> adlar;
  const auto ikiHane = [](int no) { return (no < 10 ? "0" : "") + std::to_string(no) + "-"; };
  const auto son = std::find_if(turler.rbegin(), turler.rend(), [](const HesapTuru& tur) { return tur.no != 0; });
  for (auto tur = turler.begin(); tur != son.base(); ++tur)
    adlar.push_back(tur->no != 0 ? ikiHane(tur->no) + tur->ack : ikiHane(int(adlar.size()) + 1) + "(kullanılmıyor)");
  return adlar;
}

void SigortaKollariniKoy(AlanDenetimi& denetim, const HesapTurleri& turler) {
  SecenekleriKoy(denetim, SigortaKollari(turler));
  auto& liste = dynamic_cast<QComboBox&>(*denetim.Odak());
  auto& model = dynamic_cast<QStandardItemModel&>(*liste.model());
  auto* gorunum = qobject_cast<QListView*>(liste.view());
  for (int satir = 0; satir < liste.count(); ++satir) {
    const bool kullanilir = turler[std::size_t(satir)].no != 0;
    model.item(satir)->setEnabled(kullanilir);
    if (gorunum != nullptr) gorunum->setRowHidden(satir, !kullanilir);
  }
}

}  // namespace belvani
