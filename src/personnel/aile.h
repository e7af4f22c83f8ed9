// Family of a person: rows of `esco`. The spouse, and the children by their codes of 4 and above, decide the
// minimum-living allowance.
//
// Nothing forbids two rows of the same kinship. The lists of choices, and the number that a coded cell stands for, are
// in personnel/listeler.h.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/tables/esco.h"
#include "personnel/listeler.h"

namespace belvani {

// In the order of kinship; rows of one kinship as they were entered.
std::vector<Esco> AileOku(Oturum& o, std::string_view kod);

// Saves one row of the person `satir.kod` and gives its number, which the screen keeps in the row (`oto`), so that the
// next save edits the same record. A row without a number, or whose record someone has deleted, is added. A row
// without a date of birth leaves the stored one as it is.
std::optional<std::int32_t> AileKaydet(Oturum& o, const Esco& satir, Bildirim& bildirim);

// Asks, and deletes the row.
bool AileSil(Oturum& o, std::int32_t oto, Bildirim& bildirim);

}  // namespace belvani
