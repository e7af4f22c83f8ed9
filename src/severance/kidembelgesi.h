// "TAZMİNAT HESAPLAMA TABLOSU": the sheet of one person's severance and notice, as text 63 letters wide, as a drawn
// page of the same lines, and as a spreadsheet. An excluded side is blank on it, and so are all amounts without a wage.
#pragma once

#include <memory>
#include <string>

#include "printing/belge.h"
#include "severance/kidemhesabi.h"

namespace belvani {

inline constexpr std::string_view KidemBasligi = "TAZMİNAT HESAPLAMA TABLOSU";

// An amount of the calculation as it is shown, by its name ("netKidem"); nothing where the sheet is blank.
std::optional<Tutar> KidemTutariBul(const KidemCizelgesi& cizelge, std::string_view ad);

std::string KidemMetni(const KidemCizelgesi& cizelge);
std::unique_ptr<Belge> KidemBelgesi(KidemCizelgesi cizelge);

}  // namespace belvani
