// heskod ("Hesap Türleri"): the fifty insurance branches. With the mode "edit" in the session's PencereTip they can be
// changed; a row is saved when it is left, unless it takes another one's number.
#pragma once

#include "screens/payroll/listeekrani.h"

namespace belvani {

class heskod : public ListeEkrani<HesapTuru> {
 public:
  heskod(EkranBaglami& baglam, ParametreDeposu& parametreler);
};

}  // namespace belvani
