// The list of printers: those of the print server, and the parallel ports of this computer.
#pragma once

#include "ui/form.h"

namespace belvani {

// Opens the list; the chosen printer, or nothing.
std::optional<std::string> YaziciSecimi(EkranBaglami& baglam, const std::string& simdiki);

}  // namespace belvani
