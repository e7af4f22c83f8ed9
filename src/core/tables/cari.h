// Movements of a person's account.
#pragma once

#define BELVANI_TABLO cari
#define BELVANI_KAYIT Cari
#define BELVANI_DEF "core/tables/cari.def"
#include "core/tables/tablo_uret.inc"
