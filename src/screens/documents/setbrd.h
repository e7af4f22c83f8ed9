// setbrd ("Özel Bordro"): the second form of the wage ledger, with the gross pay of a day, meals and transport.
#pragma once

#include "screens/documents/belgeekrani.h"

namespace belvani {

class setbrd : public BelgeEkrani {
 public:
  setbrd(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  std::unique_ptr<Belge> BelgeYap() override;

 private:
  BelgeYazisi yazi_;
};

}  // namespace belvani
