// agifrm ("A.G.İ. Parametresi"): rates and base of the minimum-living allowance.
#pragma once

#include "screens/payroll/parametreekrani.h"

namespace belvani {

class agifrm : public ParametreEkrani {
 public:
  agifrm(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Goster();
  void Kaydet();
};

}  // namespace belvani
