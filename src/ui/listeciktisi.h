// What every list (`dclist`) can give away: its rows as they stand, in their order and as filtered, to the printer and
// to a spreadsheet. From its context menu and by key: Ctrl+P prints, Ctrl+E goes to the spreadsheet.
#pragma once

#include <functional>

#include "ui/ekran.h"

namespace belvani {

class dclist;
class Rapor;

// The visible columns and rows.
Rapor ListeRaporu(dclist& liste, const QString& baslik);

// Gives the list both commands, once; `baslik` is asked for when they run.
void ListeCiktisiBagla(EkranBaglami& baglam, dclist& liste, std::function<QString()> baslik);

}  // namespace belvani
