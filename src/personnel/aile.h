// Family of a person: rows of `esco`. The spouse, and the children by their codes of 4 and above, decide the
// minimum-living allowance.
//
// Nothing forbids two rows of the same kinship. The lists of choices, and the number that a coded cell stands for, are
// in personnel/listeler.h.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/tables/esco.h"
#include "personnel/kayit.h"
#include "personnel/listeler.h"

namespace belvani {

// In the order of kinship; rows of one kinship as they were entered.
std::vector<Esco> AileOku(Oturum& o, std::string_view kod);

// Saves one row of the person `kod` and gives it as it is stored, with its number: what the screen keeps of it, so that
// the next save edits the same record. A row that was not read is added. A row without a date of birth leaves the
// stored one as it is.
Yazim<Esco> AileKaydet(Oturum& o, const Okunan<Esco>& satir);

// Asks, and deletes the row.
Sonuc<Silme> AileSil(Oturum& o, std::int32_t oto, Bildirim& bildirim);

}  // namespace belvani
