// Relatives of a person: spouse, parents, children.
#pragma once

#define BELVANI_TABLO esco
#define BELVANI_KAYIT Esco
#define BELVANI_DEF "core/tables/esco.def"
#include "core/tables/tablo_uret.inc"
