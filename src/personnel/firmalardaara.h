// The search for a person through all companies below the data path.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/veriyolu.h"

namespace belvani {

struct BulunanKisi {
  std::string adsoy;
  std::string firma;  // "ORGU - Işıl Örgü Ltd."
  std::string donem;  // the company's working month, "07-2009"

  bool operator==(const BulunanKisi&) const = default;
};

// People with the text anywhere in "first name, blank, family name", case by the Turkish alphabet, company by company
// in their order. Stores that cannot be read are passed over; none is written. A step is a company; cancelled, it gives
// what was found until then.
// Example: "ıl ç" finds Işıl Çağlar.
std::vector<BulunanKisi> FirmalardaAra(const VeriYolu& veri, std::string_view adsoy, Ilerleme& ilerleme);

}  // namespace belvani
