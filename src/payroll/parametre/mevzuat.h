// The statutory figures that are shipped with the program: data/mevzuat/, one JSON file per half year of 2003-2009.
//
// Each figure stands there with its certainty and its sources (kaynaklar.json). A file holds one period or more, for
// figures may change within the half year. Amounts are in new lira there; those of 2003-2004 have up to six decimals,
// so that the old-lira amount is exact. Insurance branches that the files do not list have rates of zero.
//
// Example: July 2009 gives a minimum wage of 693.00 and a premium ceiling of 4,504.50.
#pragma once

#include <string>

#include "core/sonuc.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

// The unit of a company's books: six zeros were dropped on 01.01.2005 (law 5083).
enum class Lira { Yeni, Eski };

// The parameters of a month, with the built-in insurance branches and eras. For Lira::Eski every amount is the
// published one of before 2005 (x 1,000,000): January 2003 has a floor of 327,583,290.
Sonuc<YasalParametreler> MevzuatYukle(const std::string& dizin, int yil, int ay, Lira lira = Lira::Yeni);

// The table of the personal-expense refund of a year: that year's income tax until 2003, in the given lira; a table of
// its own from 2004 on, always in new lira. Years without a refund have none, which is the failure.
Sonuc<GvTablosu> OzelGvMevzuati(const std::string& dizin, int yil, Lira lira = Lira::Yeni);

// Where the shipped figures lie (core/veridizini.h), with a separator at the end.
std::string MevzuatDizini();

// The limit of the last tax bracket, which the law leaves open: above any possible base.
Tutar AcikDilimLimiti(Lira lira);

}  // namespace belvani
