// heskod ("Hesap Türleri"): the fifty insurance branches. With the mode "edit" in the session's PencereTip they can be
// changed.
#pragma once

#include "screens/payroll/hesapturuekrani.h"

namespace belvani {

class heskod : public HesapTuruEkrani {
 public:
  heskod(EkranBaglami& baglam, ParametreDeposu& parametreler);
};

}  // namespace belvani
