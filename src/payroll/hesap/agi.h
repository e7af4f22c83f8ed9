// Minimum-living allowance ("asgari geçim indirimi"): a part of the income tax, paid to the employee on top of net.
//
// Law: income tax act (193), article 32, as amended by law 5615; communiqué 265. In force from 01.01.2008. Percent of
// the monthly gross minimum wage at the start of the year: 50 for the employee, 10 for a spouse without income, 7.5 for
// each of the first two children and 5 for each further one, times the rate of the first tax bracket; never more than
// the month's tax. Not prorated by days.
// Example (2009): single -> 666.00 × 50 % × 15 % = 49.95; spouse and two children -> 75 % -> 74.93.
#pragma once

#include "core/yuvarlama.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

// The first year of the allowance. Until then `ogv` of a pay record is a payment of the personal-expense refund, typed
// in.
constexpr int AgiIlkYili = 2008;

// Relatives as the rules count them.
struct Aile {
  int agiEs = 0;     // spouses counted for the allowance
  int agiCocuk = 0;  // children counted for the allowance
  int cocuk = 0;     // all children, for the exemption of the child allowance

  // One row of `esco`: kinship 1 is the spouse, 4 and above a child; agiok 1 counts.
  void Ekle(int yakinlik, int agiok) {
    if (yakinlik >= 4) ++cocuk;
    if (agiok != 1) return;
    if (yakinlik == 1) ++agiEs;
    if (yakinlik >= 4) ++agiCocuk;
  }
};

// Percent of the base; a spouse counts once, children up to four.
Tek AgiOrani(const AgiTablosu& tablo, const Aile& aile);

// The allowance: base × percent × rate of the first bracket, at most `gvtutar`.
Tutar AgiHesapla(const AgiTablosu& tablo, Tek agioran, Tek ilkDilimOrani, Tutar gvtutar, Yuvarlayici yuvarla);

}  // namespace belvani
