// The nine earning lines and eleven allowance lines of a pay record, by number.
#pragma once

#include <array>

#include "core/tables/brd.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

constexpr int GunSatiriSayisi = 6;    // ng ht ui rt mi ha
constexpr int MesaiSatiriSayisi = 3;  // fm1 fm2 fm3

inline constexpr std::array<Kolon<Brd, std::uint8_t>, GunSatiriSayisi> GunKolonlari{brd::ng, brd::ht, brd::ui,
                                                                                    brd::rt, brd::mi, brd::ha};
inline constexpr std::array<Kolon<Brd, Tek>, MesaiSatiriSayisi> MesaiKolonlari{brd::fm1, brd::fm2, brd::fm3};
inline constexpr std::array<Kolon<Brd, Tek>, MesaiSatiriSayisi> MesaiCarpanlari{brd::fmo1, brd::fmo2, brd::fmo3};
inline constexpr std::array<Kolon<Brd, Tutar>, YardimSayisi> YardimKolonlari{
    brd::yrd01, brd::yrd02, brd::yrd03, brd::yrd04, brd::yrd05, brd::yrd06,
    brd::yrd07, brd::yrd08, brd::yrd09, brd::yrd10, brd::yrd11};

// As the payroll screen labels them.
inline constexpr std::array<std::string_view, KazancSayisi> KazancAdlari{
    "Normal Gün", "Hafta Tatili",    "Ücretli İzin",    "Resmi Tatil",    "Mazeret İzni",
    "Hasta",      "Fazla Mesai - 1", "Fazla Mesai - 2", "Fazla Mesai - 3"};

}  // namespace belvani
