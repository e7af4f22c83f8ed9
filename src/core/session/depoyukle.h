// A store file of a backup into a place that is no directory.
#pragma once

#include <string>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "core/veriyolu.h"

namespace belvani {

// `dosya` is a whole store of this computer, nobody's; the place has none yet. All its rows are there afterwards, and
// were compared. Throws Vazgecilmis when `ilerleme` stops it.
Durum DepoYukle(const std::string& dosya, const VeriYolu& sirket, Ilerleme* ilerleme);

}  // namespace belvani
