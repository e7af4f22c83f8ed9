// brdzarf ("Ücret Pusulası"): the pay slips of a month, one, two or four on a sheet.
#pragma once

#include "screens/documents/belgeekrani.h"

namespace belvani {

class brdzarf : public BelgeEkrani {
 public:
  brdzarf(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  std::unique_ptr<Belge> BelgeYap() override;
};

}  // namespace belvani
