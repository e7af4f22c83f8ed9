// sabpu ("Şablon Puantaj"): the month that most of the staff works.
#pragma once

#include "payroll/screens/parametreekrani.h"

namespace belvani {

class sabpu : public ParametreEkrani {
 public:
  sabpu(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Kaydet();

  Sablon sablon_;
};

}  // namespace belvani
