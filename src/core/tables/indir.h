// Rule of each of the three deductions from the income-tax base.
#pragma once

#define BELVANI_TABLO indir
#define BELVANI_KAYIT Indir
#define BELVANI_DEF "core/tables/indir.def"
#include "core/tables/tablo_uret.inc"
