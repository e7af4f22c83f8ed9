// Spreading the template's allowances over the days a person has worked.
//
// Kind 1 ("Toplam Gun") is for the whole template month: amount / template days × the person's premium days. Kind 2
// ("Fiili Gün") goes by days worked alone. Each result is money-rounded; a template without days gives 0.
// Example: 130.00 for 26 days worked, 13 days -> 65.00.
#pragma once

#include <optional>

#include "core/yuvarlama.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

// The amount of allowance line `i` (0 to 10); nothing for a line of kind 0, which no day count changes.
std::optional<Tutar> SablonYardimi(const Sablon& sablon, int i, int SskGun, int ng, Yuvarlayici yuvarla);

}  // namespace belvani
