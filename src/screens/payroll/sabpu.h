// sabpu ("Şablon Puantaj"): the month that most of the staff works.
#pragma once

#include "screens/payroll/parametreekrani.h"

namespace belvani {

class sabpu : public ParametreEkrani {
 public:
  sabpu(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Kaydet();

  Sablon sablon_;
};

}  // namespace belvani
