// kanun ("Kanun Tarihleri"): which premium rules hold from when to when.
#pragma once

#include "screens/payroll/listeekrani.h"

namespace belvani {

class kanun : public ListeEkrani<KanunSatiri> {
 public:
  kanun(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  bool Sakla(const std::vector<KanunSatiri>& satirlar);
  bool SatirSaglam(int satir);
};

}  // namespace belvani
