// The company: one record.
#pragma once

#define BELVANI_TABLO firma
#define BELVANI_KAYIT Firma
#define BELVANI_DEF "core/tables/firma.def"
#include "core/tables/tablo_uret.inc"
