// The subcontractor through whom the employer takes people on: the first record of `arac`.
#pragma once

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/tables/arac.h"

namespace belvani {

// The record, or an empty one with the code "000" when there is none.
Arac AraciOku(Oturum& o);

// False: "Aracı Bilgileri Kaydedilemedi" was told.
bool AraciKaydet(Oturum& o, const Arac& arac, Bildirim& bildirim);

}  // namespace belvani
