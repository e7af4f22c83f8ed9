// The ways of the monthly declaration to paper and to the spreadsheet, from the screen's commands on. What may not go
// there is refused by AylikBildirge; a refusal comes back to be shown at its row.
#pragma once

#include "declarations/aylikbildirge.h"
#include "ui/ekran.h"

namespace belvani {

// " Yazıcıya Yazdır": print dialog; the drawn form is first shown, its values to be moved and changed.
Durum BildirgeYazdir(EkranBaglami& baglam, AylikBildirge& bildirge);

// " Excel'e gönderim ": the filled form in the user's spreadsheet program.
Durum BildirgeExceleGonder(EkranBaglami& baglam, AylikBildirge& bildirge);

}  // namespace belvani
