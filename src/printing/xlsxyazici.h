// The report as a spreadsheet file (.xlsx).
#pragma once

#include <string>

#include "core/sonuc.h"
#include "printing/rapor.h"
#include "printing/yaprak.h"

namespace belvani {

// One sheet: title, upper lines without page numbers, a line of short heads that stays in sight, rows, totals, end
// block. Amounts, counts and days are real numbers and dates, "dd.mm.yyyy"; totals are the report's own, as values and
// not as formulas. A text is a text even where it looks like a formula. The bytes of the file, to be kept by DosyaYaz.
Sonuc<std::string> XlsxRaporu(const Rapor& rapor, Ilerleme* ilerleme = nullptr);

// Slips one below the other: labels and values of the left block in columns A and B, of the right one in C and D.
Sonuc<std::string> XlsxYapraklari(const YaprakBelgesi& belge, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
