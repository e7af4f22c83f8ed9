// brdui ("Ücretli İzinler Raporu"): the paid leave that people took, in three forms.
#pragma once

#include "screens/documents/belgeekrani.h"

namespace belvani {

class brdui : public BelgeEkrani {
 public:
  brdui(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  std::unique_ptr<Belge> BelgeYap() override;

 private:
  BelgeYazisi yazi_;
};

}  // namespace belvani
