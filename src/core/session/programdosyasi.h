// Files of the program's directory that its user may change (colour table, shortcuts). Where that directory is not
// ours to write, a change is kept in the user's own directory under the same name, and is from then on what is read.
#pragma once

#include <string>
#include <string_view>

#include "core/sonuc.h"

namespace belvani {

// The user's copy when there is one, else the file below `dizin` (which ends in a separator).
std::string ProgramDosyasi(const std::string& dizin, std::string_view ad);

// Replaces, whole, the file that ProgramDosyasi names; where that cannot be written, the user's copy.
Durum ProgramDosyasiYaz(const std::string& dizin, std::string_view ad, std::string_view icerik);

}  // namespace belvani
