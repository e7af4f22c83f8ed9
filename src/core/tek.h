// Tek: a single-precision number of the store or of a parameter file (rates, hours, multipliers).
//
// It enters a calculation as the shortest decimal that a screen would show: the float nearest to 0.1 counts as 0.1 and
// not as 0.100000001490116, so no binary dust reaches the last kuruş. A sum of rates goes back through Tek before it is
// used, for the pay record keeps it as a single and a later recalculation must find the same number.
#pragma once

#include <compare>

namespace belvani {

class Tek {
 public:
  constexpr Tek() = default;
  // Rounds to single precision; what is not a finite number becomes 0.
  explicit Tek(double sayi) : sayi_(KisaOndalik(sayi)) {}

  constexpr double Sayi() const { return sayi_; }
  float Kayan() const { return float(sayi_); }

  constexpr auto operator<=>(const Tek&) const = default;

 private:
  static double KisaOndalik(double sayi);

  double sayi_ = 0;
};

}  // namespace belvani
