// Unions and their fees.
#pragma once

#define BELVANI_TABLO sendika
#define BELVANI_KAYIT Sendika
#define BELVANI_DEF "core/tables/sendika.def"
#include "core/tables/tablo_uret.inc"
