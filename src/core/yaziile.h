// The amount in Turkish words, as it is written on cheques and receipts.
#pragma once

#include <string>

#include "core/yuvarlama.h"

namespace belvani {

// Words are joined with no blanks inside a number: 1250.75 -> "binikiyüzelli TL yetmişbeş KR"; 1000 -> "bin TL";
// 0.50 -> " TL elli KR" (nothing marks zero). Two digits of the fraction are told. The amount is money-rounded first;
// it must be positive, for no word says minus.
std::string YaziIleTutar(Tutar tutar, Yuvarlayici yuvarla, const std::string& paraBirimi = "TL",
                         const std::string& kurusBirimi = "KR");

}  // namespace belvani
