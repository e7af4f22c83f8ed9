// kidempar ("Kıdem Parametreleri"): the year of service of the company, and the allowance lines of both pays.
#pragma once

#include "payroll/parametre/tazminatparametreleri.h"
#include "screens/payroll/parametreekrani.h"

namespace belvani {

class kidempar : public ParametreEkrani {
 public:
  kidempar(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Kaydet();

  KidemParametreleri kidem_;
};

}  // namespace belvani
