// The part of an allowance that is exempt from the social-security base.
//
// Law 506, article 77 (meals, family and child allowance up to a part of the minimum wage; severance and notice pay).
// The rule of each allowance line is in `muaf`; the limits follow the daily floor, SskTaban / 30.
// Example: rule 3 at 10 %, floor 531.00, 30 days, allowance 60.00 -> limit 53.10, exempt 53.10.
#pragma once

#include "core/tables/muaf.h"
#include "core/yuvarlama.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

enum class MuafiyetSekli : std::uint8_t {
  Yok = 0,
  FiiliGun = 1,        // "Fiili Gün": limit by the days worked
  ToplamGunCocuk = 2,  // "Toplam Gun*Çocuk": limit by all days and the children, two at most
  ToplamGun = 3,       // "Toplam Gun": limit by all days
  KazancOran = 4,      // "Kazanc*Oran": a rate of the allowance; replaces what earlier lines gave
  Sabit = 5,           // "Sabit": up to a fixed amount
};

// As the screen lists them; the position is what is stored.
inline constexpr std::array<std::string_view, 6> MuafiyetSekilleri{"Yok",        "Fiili Gün",   "Toplam Gun*Çocuk",
                                                                   "Toplam Gun", "Kazanc*Oran", "Sabit"};

// Names and exemption rules of the allowance lines, by their numbers, from 1.
using YardimTanimlari = std::array<Muaf, YardimSayisi>;
// The names that stand where a company has given none; no line is exempt.
YardimTanimlari VarsayilanYardimlar();

struct MuafiyetGirdisi {
  Tutar tutar;  // entered on the line
  const Muaf& tanim;
  int ng = 0;      // days worked
  int SskGun = 0;  // premium days
  int cocuk = 0;   // children, whether counted for the allowance or not
  Tutar SskTaban;
};

// The exempt total after this line, `muaftutar` being that of the lines before it.
Tutar MuafHesapla(const MuafiyetGirdisi& g, Tutar muaftutar, Yuvarlayici yuvarla);

}  // namespace belvani
