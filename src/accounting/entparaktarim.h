// Posting lines out of a CSV file: columns `grup`, `no`, `yer`, `ba`, `hesap`.
#pragma once

#include "personnel/aktarim.h"

namespace belvani {

// A line that is known is changed in the columns of the file alone. Accounts are checked against the chart of the
// company's accounting store; without one that is said as a warning of the first row.
Sonuc<AktarimSonucu> EntparAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip);

}  // namespace belvani
