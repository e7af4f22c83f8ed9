// Personnel card: one record per person.
#pragma once

#define BELVANI_TABLO sicil
#define BELVANI_KAYIT Sicil
#define BELVANI_DEF "core/tables/sicil.def"
#include "core/tables/tablo_uret.inc"
