// ozgipar ("Özel Gider İndirimi Ayarları"): the parameters of the personal-expense refund, those of the company.
#pragma once

#include "payroll/parametre/ozelgiderparametreleri.h"
#include "screens/payroll/parametreekrani.h"

namespace belvani {

class ozgipar : public ParametreEkrani {
 public:
  ozgipar(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Kaydet();

  OzelGiderParametreleri kayitli_;
};

}  // namespace belvani
