// The insurance branches as the screens of a person list them. A person keeps the row of the table, whatever rows above
// it are in use, so the list has every row up to the last one that is: the unused ones are hidden and cannot be chosen.
// Row 2 without a number: "04-…" is still position 3.
#pragma once

#include <string>
#include <vector>

#include "payroll/parametre/parametreler.h"
#include "ui/alandenetimi.h"

namespace belvani {

// "01-Tüm Sigorta Kolları", by row.
std::vector<std::string> SigortaKollari(const HesapTurleri& turler);

// Fills a list field with them.
void SigortaKollariniKoy(AlanDenetimi& denetim, const HesapTurleri& turler);

}  // namespace belvani
