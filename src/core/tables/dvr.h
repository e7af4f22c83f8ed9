// Sums of a closed year, one row per person and year.
#pragma once

#define BELVANI_TABLO dvr
#define BELVANI_KAYIT Dvr
#define BELVANI_DEF "core/tables/dvr.def"
#include "core/tables/tablo_uret.inc"
