// The field of a designer's column: chosen out of the list of all that are offered, kept by its name in the file.
#pragma once

#include "core/tables/alansatiri.h"
#include "reports/raporalani.h"

namespace belvani {

inline constexpr std::string_view AlanSecimiAdi = "alan";

// `alanlar` names the choices, in their order. A column whose field is not among them shows none, and keeps it.
template <class Kolon>
Alan AlanSecimi(std::span<const RaporAlani> alanlar, std::span<const std::string_view> adlar) {
  return Alan(
      AlanTanimi{AlanSecimiAdi, AlanTipi::Uzun, 0, AlanNiteligi::Serbest}, typeid(Kolon),
      [alanlar, adlar](const void* kolon) -> Deger {
        const RaporAlani* alan = RaporAlaniBul(alanlar, static_cast<const Kolon*>(kolon)->alan);
        const auto yeri = alan == nullptr ? adlar.end() : std::ranges::find(adlar, alan->ad);
        return yeri == adlar.end() ? Deger(std::int64_t(-1)) : Deger(std::int64_t(yeri - adlar.begin()));
      },
      [alanlar, adlar](void* kolon, const Deger& deger) {
        const auto sira = NullMu(deger) ? -1 : TamDegeri(deger);
        if (sira < 0 || sira >= std::int64_t(adlar.size())) return;
        static_cast<Kolon*>(kolon)->alan = RaporAlaniBul(alanlar, adlar[std::size_t(sira)])->dosyadaki;
      },
      "DBase", {.liste = adlar});
}

inline std::vector<std::string_view> SunulanAdlar(std::span<const RaporAlani> alanlar) {
  std::vector<std::string_view> adlar;
  for (const RaporAlani& alan : alanlar)
    if (alan.Sunulur()) adlar.push_back(alan.ad);
  return adlar;
}

}  // namespace belvani
