// Income tax on wages: progressive over the year, so a month's tax depends on the base already earned in it.
//
// Law: income tax act (193), articles 103 and 104; the brackets come from `gvtbl.dat`, one table a year.
// Example: limits 10,000 and 25,000 at 15 % and 20 %, 9,000 carried in, base 2,000
//          -> 1,000 × 15 % + 1,000 × 20 % = 350.
#pragma once

#include <vector>

#include "payroll/parametre/parametreler.h"

namespace belvani {

// The tax of a whole year-to-date base. Each bracket's part is kept to four decimals; nothing is money-rounded here.
// Rows with a limit of zero are passed over. What lies above the last limit bears no tax: the last bracket in use must
// carry a limit above any possible base.
Tutar VergiBul(const GvTablosu& tablo, Tutar matrah);

// The tax on `matrah` when `devmatrah` has been earned earlier in the year. The caller money-rounds.
Tutar GvHesapla(const GvTablosu& tablo, Tutar devmatrah, Tutar matrah);

// What of a base lies in each bracket, as VergiBul taxes it; for the trace.
struct DilimMatrahi {
  Tutar alt, ust, matrah;
  Tek oran;
};
std::vector<DilimMatrahi> DilimMatrahlari(const GvTablosu& tablo, Tutar devmatrah, Tutar matrah);

}  // namespace belvani
