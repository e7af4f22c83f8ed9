// The report as lines of text in fixed-width letters, for dot-matrix printers and text files.
#pragma once

#include <string>

#include "core/bildirim.h"
#include "printing/kagit.h"
#include "printing/metinalici.h"
#include "printing/rapor.h"

namespace belvani {

// UTF-8, lines ending in "\n", pages parted by a form feed ("\f"); no blanks at the end of a line. Vertical lines and
// rules are box-drawing letters, "│" (byte 179 of the printer's code page), "─", "┬", "┼", "┴"; with blanks between the
// columns a rule is a row of "-" under each. Numbers stand right, texts left, and cut by letters where the line is
// full. Control characters in texts are left out, for they would command the printer. Without rows the heads stand
// alone.
std::string MetinRaporu(const Rapor& rapor, const SayfaDuzeni& duzen, Ilerleme* ilerleme = nullptr);
// The same page by page.
void MetinRaporunuVer(const Rapor& rapor, const SayfaDuzeni& duzen, const MetinAlici& al, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
