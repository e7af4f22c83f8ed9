// What a recalculation takes away: until the end of 2007 the payment of the personal-expense refund is typed into a
// saved pay record (`ogv`), and the calculation knows nothing of it. From 2008 on `ogv` is the minimum-living
// allowance, which is calculated.
#pragma once

#include <optional>
#include <string>

#include "core/kusur.h"
#include "core/store/motor.h"
#include "core/tables/brd.h"

namespace belvani {

// The payment of one saved record that `yeni` in its place would lose; "" where it loses none.
std::string MahsupKaybi(const Brd& kayitli, const Brd& yeni, int paraonda);

// Of all records of a month, before it is prepared anew: how many, and how much. Throws MotorHatasi.
std::optional<Kusur> AyinMahsupKaybi(Motor& motor, int yil, int ay, int paraonda);

}  // namespace belvani
