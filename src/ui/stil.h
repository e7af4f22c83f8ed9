// The look of the program: one style for every screen, painted in the colours of the colour table.
#pragma once

#include <QFont>

#include "core/session/gorunum.h"

class QApplication;

namespace belvani {

// Applies the colours, and the fonts of the lists' headers and rows, to the whole program at once; open screens follow.
void StilKur(QApplication& uygulama, const RenkTablosu& renkler, const GridYazilari& yazilar = GridYazilariOku());

// A family that this computer does not have is replaced by the program's own.
QFont FontYap(const YaziTipi& yazi);

// The Turkish texts of the toolkit's own dialogs.
void CeviriYukle(QApplication& uygulama);

}  // namespace belvani
