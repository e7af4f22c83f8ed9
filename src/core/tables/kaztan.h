// Flags of the nine earnings and eleven allowances for a group of persons: 1 open for entry, 2 enters the
// social-security base, 4 the income-tax base, 8 the stamp-duty base, 16 exempt by its rule in `muaf`.
#pragma once

#define BELVANI_TABLO kaztan
#define BELVANI_KAYIT Kaztan
#define BELVANI_DEF "core/tables/kaztan.def"
#include "core/tables/tablo_uret.inc"
