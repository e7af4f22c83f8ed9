// yrdisim ("Yardım İsimlendirme"): names and exemption rules of the eleven allowances.
#pragma once

#include "screens/payroll/listeekrani.h"

namespace belvani {

class yrdisim : public ListeEkrani<Muaf> {
 public:
  yrdisim(EkranBaglami& baglam, ParametreDeposu& parametreler);
};

}  // namespace belvani
