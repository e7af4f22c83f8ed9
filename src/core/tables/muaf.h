// Exemption rule of each of the eleven allowances.
#pragma once

#define BELVANI_TABLO muaf
#define BELVANI_KAYIT Muaf
#define BELVANI_DEF "core/tables/muaf.def"
#include "core/tables/tablo_uret.inc"
