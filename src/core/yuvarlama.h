// The money rounding of the whole payroll, and the converter from old lira.
//
// Yuvarla adds 0.00005 to the value and then rounds it to the company's money decimals (`paraonda`), ties to even on
// the double value. The bias makes an exact half on a money amount go up: 1.005 -> 1.01, 2.345 -> 2.35; with no
// decimals 2.5 -> 3. A negative amount is biased the same way, towards zero: -1.005 -> -1.00. The bias is fixed,
// whatever the decimals are. Every amount of the payroll went through this rule, so neither half of it may change.
#pragma once

#include "core/tutar.h"

namespace belvani {

class Yuvarlayici {
 public:
  // paraonda: decimals of money, 2 for kuruş, 0 for old lira. Amounts hold four, so more than that act as four.
  explicit Yuvarlayici(int paraonda)
      : carpan_(UsluOn[Sinirla(paraonda)]), adim_(Tutar::Olcek / std::int64_t(carpan_)) {}

  Tutar operator()(double deger) const {
    if (!(std::fabs(deger) < Tutar::Sinir)) throw TutarTasmasi();
    return Tutar::Hamdan(std::llrint((deger + Sapma) * carpan_) * adim_);
  }
  Tutar operator()(Tutar deger) const { return (*this)(deger.Sayi()); }

 private:
  static constexpr double Sapma = 0.00005;
  static constexpr double UsluOn[] = {1, 10, 100, 1'000, 10'000};
  static constexpr int Sinirla(int onda) { return onda < 0 ? 0 : onda > 4 ? 4 : onda; }

  double carpan_;
  std::int64_t adim_;
};

// An amount that may be in old lira, in the present unit (six zeros dropped by law 5083 of 2004): from 2004 on, an
// amount above 1,000,000 is divided by 1,000,000; every amount is money-rounded. `yil` is the year of the amount.
// Example: 1,000,000.01 in 2004 -> 1.00; 1,000,000 stays; 5,000,000 in 2003 stays.
Tutar TutarCevir(Tutar tutar, int yil, Yuvarlayici yuvarla);

}  // namespace belvani
