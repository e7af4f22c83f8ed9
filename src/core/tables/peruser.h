// Users of the company: who may log in.
#pragma once

#define BELVANI_TABLO peruser
#define BELVANI_KAYIT Peruser
#define BELVANI_DEF "core/tables/peruser.def"
#include "core/tables/tablo_uret.inc"
