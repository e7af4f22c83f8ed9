// ihbsure ("İhbar Süreleri"): the periods of notice by months of service.
#pragma once

#include "payroll/parametre/tazminatparametreleri.h"
#include "screens/payroll/listeekrani.h"

namespace belvani {

class ihbsure : public ListeEkrani<IhbarSuresi> {
 public:
  ihbsure(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  IhbarSureleri sureler_;
};

}  // namespace belvani
