// What a company sets for severance and notice pay: the year of service, the places of both pays among the allowance
// lines, and the periods of notice.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace belvani {

// The year of service that has a day count of its own; with any other number the year has 360 days.
constexpr int TakvimYiliGunu = 365;
constexpr int HesapYiliGunu = 360;

struct KidemParametreleri {
  std::int16_t KidemYilGun = HesapYiliGunu;
  std::uint8_t KidemPuantajYeri = 9;   // positions among the allowance lines, from 0
  std::uint8_t IhbarPuantajYeri = 10;  // kept; both pays are taxed by the line at KidemPuantajYeri

  bool TakvimYili() const { return KidemYilGun == TakvimYiliGunu; }
  int YilGunu() const { return TakvimYili() ? TakvimYiliGunu : HesapYiliGunu; }

  bool operator==(const KidemParametreleri&) const = default;
};

// Up to the end of month `ay` of service the notice is `gun` days; a row with ay 0 is not used.
struct IhbarSuresi {
  std::int16_t ay = 0;
  std::int16_t gun = 0;

  bool operator==(const IhbarSuresi&) const = default;
};

constexpr std::size_t IhbarSatirSayisi = 8;
using IhbarSureleri = std::array<IhbarSuresi, IhbarSatirSayisi>;

// Labour law 4857, article 17: two weeks below six months, four to a year and a half, six to three years, eight above.
inline constexpr IhbarSureleri VarsayilanIhbarSureleri{{{6, 15}, {18, 30}, {36, 45}, {9999, 60}}};

}  // namespace belvani
