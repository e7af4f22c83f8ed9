// Net to gross: the gross wage whose net is the agreed one.
//
// Between gross and net stand three rounded deductions (premium, income tax, stamp duty), so there is no closed form;
// the gross is found by halving. The answer holds for a full month of plain wage: days, allowances, deductions, union
// fee and the minimum-living allowance are not looked at, and the whole monthly ceiling applies.
// Example (2009, first half; 15 % premium, 6 per thousand): net 477.00 with nothing carried in -> gross 665.73,
// for 665.73 − 99.86 − 84.88 − 3.99 = 477.00.
#pragma once

#include "core/yuvarlama.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

struct NettenBrutKosullari {
  double oran = 0;       // employee's premium rate in all, percent
  double damgaoran = 0;  // per thousand
  Tutar devmatrah;       // income-tax base carried into the month
  Tutar SskTavan;
  int paraonda = 2;
};

// A net that no gross reaches (one between two kuruş, say) would let the search stand still between two neighbours for
// ever; it then gives the last midpoint tried.
Tutar NettenBrut(const GvTablosu& tablo, Tutar net, const NettenBrutKosullari& kosullar);

}  // namespace belvani
