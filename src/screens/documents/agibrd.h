// agibrd ("A.G.İ. Bordrosu"): the year's list of the minimum-living allowance, up to the chosen month.
#pragma once

#include "screens/documents/belgeekrani.h"

namespace belvani {

class agibrd : public BelgeEkrani {
 public:
  agibrd(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  std::unique_ptr<Belge> BelgeYap() override;
};

}  // namespace belvani
