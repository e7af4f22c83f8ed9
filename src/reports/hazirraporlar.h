// The reports that come with the program.
#pragma once

#include <span>
#include <string_view>

#include "reports/bordroraporu.h"
#include "reports/ozlukraporu.h"

namespace belvani {

template <class Kolonlar>
struct HazirRapor {
  std::string_view ad;
  Kolonlar kolonlar;
};

// Those of a period are of the year.
std::vector<HazirRapor<OzlukKolonlari>> HazirOzlukRaporlari(int yil);
const std::vector<HazirRapor<BordroKolonlari>>& HazirBordroRaporlari();

}  // namespace belvani
