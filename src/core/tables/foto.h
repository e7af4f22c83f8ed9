// Photographs, one per person.
#pragma once

#define BELVANI_TABLO foto
#define BELVANI_KAYIT Foto
#define BELVANI_DEF "core/tables/foto.def"
#include "core/tables/tablo_uret.inc"
