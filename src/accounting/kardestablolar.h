// Tables of the sibling programs' stores, as far as this program reads and writes them: vouchers, totals and chart of
// the accounting store, movements and groups of the business ledger.
#pragma once

#define BELVANI_TABLO fisgen
#define BELVANI_KAYIT Fisgen
#define BELVANI_DEF "accounting/fisgen.def"
#include "core/tables/tablo_uret.inc"

#define BELVANI_TABLO fistra
#define BELVANI_KAYIT Fistra
#define BELVANI_DEF "accounting/fistra.def"
#include "core/tables/tablo_uret.inc"

#define BELVANI_TABLO hestoplam
#define BELVANI_KAYIT Hestoplam
#define BELVANI_DEF "accounting/hestoplam.def"
#include "core/tables/tablo_uret.inc"

#define BELVANI_TABLO hesplan
#define BELVANI_KAYIT Hesplan
#define BELVANI_DEF "accounting/hesplan.def"
#include "core/tables/tablo_uret.inc"

#define BELVANI_TABLO isltra
#define BELVANI_KAYIT Isltra
#define BELVANI_DEF "accounting/isltra.def"
#include "core/tables/tablo_uret.inc"

#define BELVANI_TABLO islgrup
#define BELVANI_KAYIT Islgrup
#define BELVANI_DEF "accounting/islgrup.def"
#include "core/tables/tablo_uret.inc"
