// The personal-expense refund: what an employee gets back of a year's income tax for the expenses that he has declared.
//
// Law: until the year 2003 the expense is a deduction from the tax base (income tax act 193, article 63/5): a third of
// it, at most `oran` percent of the base; the tax on the rest, by the table of the year's income tax, is held against
// the tax that was paid. From 2004 on (article 121, repeated) the refund is taken by a table of its own, on the expense
// as far as the base covers it; law 5615 has ended it with the year 2006.
// Units: up to 2003 all amounts are in the lira of the books, as the table is. From 2004 on expense and base go through
// TutarCevir, and table and refund are in new lira.
// Examples: base 12,000, tax 2,150, expense 3,000, 35 percent.
//   2003, table 5,000 at 15 %, 12,000 at 20 %: a third is 1,000 (below 4,200); the tax on 11,000 is 1,950; refund 200.
//   2004, table 3,000 at 8 %, 6,000 at 6 %: refund 3,000 × 8 % = 240.
#pragma once

#include <optional>

#include "core/yuvarlama.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

constexpr int YeniOzelGiderYili = 2004;  // the first of the rules with a table of their own

constexpr bool EskiOzelGiderKurali(int yil) {
  return yil < YeniOzelGiderYili;
}

// The tax on a base by the special table; each bracket's part is money-rounded. Rows with a limit of zero are passed
// over; what lies above the last limit bears nothing.
Tutar OzelGvHesapla(const GvTablosu& tablo, Tutar matrah, Yuvarlayici yuvarla);

// No limit at all: everything would come out of it as untaxed.
bool OzelGvTablosuBos(const GvTablosu& tablo);

// A person's year, as it is kept with the sums that are carried over.
struct OzelGiderGirdisi {
  int yil = 0;
  Tutar gvmatrah;   // the year's tax base
  Tutar gvtutar;    // the year's tax
  Tutar ogimatrah;  // the expense as it was declared
};

// The refund, and how it came to be.
struct OzelGiderSonucu {
  Tutar indirim;   // what the rule lets count of the expense
  Tutar matrah;    // what the table was applied to
  Tutar vergi;     // what it gave
  Tutar ogitutar;  // the refund; below zero where the table gives more than the tax that was paid
};

OzelGiderSonucu OzelGiderHesapla(const GvTablosu& tablo, Tek oran, const OzelGiderGirdisi& girdi, Yuvarlayici yuvarla);

// The lists: a year's expense as far as the base covers it.
constexpr Tutar IndirimeEsas(Tutar gvmatrah, Tutar ogimatrah) {
  return gvmatrah < ogimatrah ? gvmatrah : ogimatrah;
}

}  // namespace belvani
