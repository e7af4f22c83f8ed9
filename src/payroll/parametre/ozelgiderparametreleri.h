// The parameters of the personal-expense refund, `ozgvpar.dat` of a company's directory, edited by `ozgipar`.
//
// The refund of a year is paid in six months that begin at `mahay` of `mahyil`.
#pragma once

#include <cstdint>
#include <optional>

#include "core/kusur.h"
#include "core/tek.h"

namespace belvani {

struct OzelGiderParametreleri {
  Tek oran;                 // percent of the yearly tax base that an expense may reach (years before 2004)
  std::int16_t mahay = 0;   // first month of the offset, 1 to 12
  std::int16_t mahyil = 0;  // year of the offset
  Tek damga;                // stamp duty on the refund, per thousand

  bool operator==(const OzelGiderParametreleri&) const = default;
};

// What a company has that has set nothing: 35 percent, from January of the year after `yil`, the stamp duty on wages.
inline OzelGiderParametreleri VarsayilanOzelGider(int yil, Tek damga) {
  return {.oran = Tek(35), .mahay = 1, .mahyil = std::int16_t(yil + 1), .damga = damga};
}

// Why they cannot be calculated with, at the member; nothing when they can.
std::optional<Kusur> OzelGiderParametreKusuru(const OzelGiderParametreleri& p);

}  // namespace belvani
