// Small arithmetic that many rules share.
#pragma once

#include <algorithm>

#include "core/tek.h"
#include "core/yuvarlama.h"

namespace belvani {

// A month has 30 days, whatever the calendar says: whatever is prorated divides by this (labour law 4857, article 49;
// law 506, article 78).
constexpr double AyGunu30 = 30;

inline double Yuzde(double deger, double yuzde) {
  return deger * yuzde / 100;
}

inline Tutar SifirdanAzOlmaz(Tutar t) {
  return std::max(t, Tutar());
}

// Floor or ceiling of the premium base for the days of the month, not rounded: monthly limit / 30 × days.
// Law 506, article 78; law 5510, article 82. Example: 4,504.50 for 15 days -> 2,252.25.
inline double GunlukSinir(Tutar aylik, int gun) {
  return aylik.Sayi() / AyGunu30 * gun;
}

// The same as money: TabanGun and TavanGun of the rules.
inline Tutar GunlukSinir(Tutar aylik, int gun, Yuvarlayici yuvarla) {
  return yuvarla(GunlukSinir(aylik, gun));
}

// A premium share: rate in percent of the base, money-rounded. 693.00 at 14 % -> 97.02.
inline Tutar PrimPayi(Tutar matrah, Tek yuzde, Yuvarlayici yuvarla) {
  return yuvarla(Yuzde(matrah.Sayi(), yuzde.Sayi()));
}

}  // namespace belvani
