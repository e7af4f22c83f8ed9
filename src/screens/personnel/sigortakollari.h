// The insurance branches as the screens of a person list them; he keeps the position in this list.
#pragma once

#include <string>
#include <vector>

#include "payroll/parametre/parametreler.h"

namespace belvani {

// "01-Tüm Sigorta Kolları"
inline std::vector<std::string> SigortaKollari(const HesapTurleri& turler) {
  std::vector<std::string> adlar;
  for (const HesapTuru& tur : turler)
    if (tur.no != 0) adlar.push_back((tur.no < 10 ? "0" : "") + std::to_string(tur.no) + "-" + tur.ack);
  return adlar;
}

}  // namespace belvani
