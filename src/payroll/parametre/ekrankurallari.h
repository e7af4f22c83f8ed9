// What the parameter screens show and check beyond their fields.
//
// Example: brackets up to 8,700 and 22,000 show the lower bounds "" and "8,700".
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/kusur.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

// The lower bound that a bracket row shows: the limit of the row before it, in whole lira grouped by thousands; "" on
// the first row and after an unused one. `satir` from 0.
std::string GvAltSinirMetni(const GvTablosu& tablo, int satir);

// What a row of the eras has wrong when it is left, at its date; nothing when it may stand. A field that holds no day
// reads as Null.
std::optional<Kusur> KanunSatiriKusuru(const KanunSatiri& satir);
// The fault of its date `alan` ("bastar", "bittar") alone.
Kusur KanunTarihiKusuru(std::string_view alan);

// A branch whose number an earlier row has already, as the table would be saved: at its row, from 1. Which row a
// person's branch is could not be told by its number.
std::optional<Kusur> HesapTurleriKusuru(const HesapTurleri& turler);

// Positions of the branches that the rate screen lists: those with a number, of the 32 that have rates.
std::vector<int> OranliDallar(const HesapTurleri& turler);

// The allowance lines as the flags screen labels them, whatever they are named in the company.
inline constexpr std::array<std::string_view, YardimSayisi> TanimYardimAdlari{
    "Prim/İkramiye", "Yemek",        "Aile Yardımı", "Çocuk Yardımı",   "Doğum Yardımı",  "Evlilik Yardımı",
    "Giyim Yardımı", "Ölüm Yardımı", "Yolluk",       "İhbar/Kasa Taz.", "Kıdem Tazmınatı"};

// Flags that a first payroll can be made with: earnings open, insured and taxed; allowances by their kind, as the law
// of 5510 (article 80) and of income tax (articles 23 to 25) has them. What the company pays otherwise it sets itself.
//   prim 15, yemek, aile and çocuk 31 (insured beyond their exemption), doğum, evlilik, ölüm, yolluk and kıdem 9 (stamp
//   duty alone), giyim 15, ihbar 13 (not insured)
KazancBayraklari OnerilenBayraklar();

}  // namespace belvani
