// Posting line of the accounting integration.
#pragma once

#define BELVANI_TABLO entpar
#define BELVANI_KAYIT Entpar
#define BELVANI_DEF "core/tables/entpar.def"
#include "core/tables/tablo_uret.inc"
