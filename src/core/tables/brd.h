// Pay record: one row per person, year and month (`no` is always 1). A row keeps the rates it was calculated with.
// Net pay has no field: gross less premiums, taxes, union fee and debt, plus the allowance `ogv`.
#pragma once

#define BELVANI_TABLO brd
#define BELVANI_KAYIT Brd
#define BELVANI_DEF "core/tables/brd.def"
#include "core/tables/tablo_uret.inc"
