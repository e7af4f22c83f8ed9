// Stamp duty on wages: per-thousand rate on the month's stamp-duty base, money-rounded; never negative.
//
// Law: stamp duty act (488), table 1, part IV. The rate comes from the parameters of the month: 6 per thousand in all
// years from 2003 to 2009.
// Example: base 693.00 at 6 per thousand -> 4.16.
#pragma once

#include "payroll/hesap/oran.h"

namespace belvani {

inline Tutar DamgaVergisi(Tutar matrah, Tek binde, Yuvarlayici yuvarla) {
  return SifirdanAzOlmaz(yuvarla(matrah.Sayi() * binde.Sayi() / 1000));
}

}  // namespace belvani
