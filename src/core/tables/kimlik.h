// Identity of a person, as the civil registry has it.
#pragma once

#define BELVANI_TABLO kimlik
#define BELVANI_KAYIT Kimlik
#define BELVANI_DEF "core/tables/kimlik.def"
#include "core/tables/tablo_uret.inc"
