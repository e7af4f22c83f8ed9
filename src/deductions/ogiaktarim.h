// Declared expenses out of a CSV file (`ogi-harcama`): columns `kod`, `harcama` (or `ogimatrah`, as it is stored) and,
// if the base is to be written too, `gvmatrah`. All rows are one transaction; when one cannot stand, nothing is saved.
#pragma once

#include "deductions/ogikosullari.h"
#include "personnel/aktarim.h"

namespace belvani {

Sonuc<AktarimSonucu> OgiHarcamaAktar(Oturum& o, int yil, const AktarilanCsv& csv, AktarimKipi kip);

}  // namespace belvani
