// The register number of a workplace on text forms: a digit a box, the groups apart, under their captions.
#pragma once

#include <array>
#include <string>

#include "core/tables/firma.h"

namespace belvani {

// Four lines, no more than 80 letters wide: captions, upper edges, digits, lower edges. A group with more digits than
// boxes has one box for all of them.
std::array<std::string, 4> IsyeriNumarasiMetni(const Firma& firma, const std::string& araciKodu);

}  // namespace belvani
