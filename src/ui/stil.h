// The look of the program: one style for every screen, painted in the colours of the colour table.
#pragma once

#include "core/session/renkler.h"

class QApplication;

namespace belvani {

// Applies the table to the whole program at once; open screens follow.
void StilKur(QApplication& uygulama, const RenkTablosu& renkler);

// The Turkish texts of the toolkit's own dialogs.
void CeviriYukle(QApplication& uygulama);

}  // namespace belvani
