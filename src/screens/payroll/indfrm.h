// indfrm ("İndirimler"): the three deductions from the income-tax base.
#pragma once

#include "screens/payroll/listeekrani.h"

namespace belvani {

class indfrm : public ListeEkrani<Indir> {
 public:
  indfrm(EkranBaglami& baglam, ParametreDeposu& parametreler);
};

}  // namespace belvani
