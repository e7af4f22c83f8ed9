// The reports that come with the program.
#pragma once

#include <span>
#include <string_view>

#include "core/tarih.h"
#include "reports/bordroraporu.h"
#include "reports/ozlukraporu.h"

namespace belvani {

template <class Kolonlar>
struct HazirRapor {
  std::string_view ad;
  Kolonlar kolonlar;
};

// Those of a period are of these days; without both of them they have no bounds.
std::vector<HazirRapor<OzlukKolonlari>> HazirOzlukRaporlari(Tarih ilkGun, Tarih sonGun);
const std::vector<HazirRapor<BordroKolonlari>>& HazirBordroRaporlari();

}  // namespace belvani
