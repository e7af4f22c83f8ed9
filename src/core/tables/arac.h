// Subcontractor.
#pragma once

#define BELVANI_TABLO arac
#define BELVANI_KAYIT Arac
#define BELVANI_DEF "core/tables/arac.def"
#include "core/tables/tablo_uret.inc"
