// The ways of the monthly declaration to paper and to the spreadsheet, from the screen's commands on. What may not go
// there is refused by AylikBildirge.
#pragma once

#include "declarations/aylikbildirge.h"
#include "ui/ekran.h"

namespace belvani {

// " Yazıcıya Yazdır": print dialog; the drawn form is first shown, its values to be moved and changed.
void BildirgeYazdir(EkranBaglami& baglam, AylikBildirge& bildirge);

// " Excel'e gönderim ": the filled form in the user's spreadsheet program.
void BildirgeExceleGonder(EkranBaglami& baglam, AylikBildirge& bildirge);

}  // namespace belvani
