// Ruled tables in lines of fixed-width letters, put together cell by cell: for papers whose text form is not one
// template but as many lines as it has people.
//
//   CizgiSatiri({}, {4, 6})            "┌────┬──────┐"
//   HucreSatiri({"Gün ", "Kazanç"})    "│Gün │Kazanç│"
//   CizgiSatiri({4, 6}, {11})          "├────┴──────┤"
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/tutar.h"

namespace belvani {

using HucreEnleri = std::vector<int>;

// The line between the row of cells above it and the one below; none where it is the first or the last.
std::string CizgiSatiri(const HucreEnleri& ust, const HucreEnleri& alt);
// Cells that have their widths already.
std::string HucreSatiri(const std::vector<std::string>& hucreler);

// In the middle of n letters, cut at its end where it is longer.
std::string OrtaHucre(std::string_view metin, int n);
// A number right in n letters: one that does not fit gives "#" in all of them, for cut it would be another.
std::string SagHucre(std::string_view sayi, int n);
// The same of an amount, which loses its thousands marks first; nothing for zero.
std::string TutarHucresi(Tutar tutar, int n, int ondalik);

}  // namespace belvani
