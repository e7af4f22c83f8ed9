// meskod ("Meslek Kodları"): the insurance branches by number and name alone, and the list of professions fetched.
#pragma once

#include "screens/payroll/hesapturuekrani.h"

namespace belvani {

class meskod : public HesapTuruEkrani {
 public:
  meskod(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void SatiriBosalt(int satir);
  void Indir();
};

}  // namespace belvani
