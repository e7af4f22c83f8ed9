// vizite2 ("Eş ve Çocuklar için Vizite Kağıdı"): the paper of a spouse or child.
#pragma once

#include "screens/personnel/yakinvizitesi.h"

namespace belvani {

class vizite2 : public YakinVizitesi {
 public:
  explicit vizite2(EkranBaglami& baglam);
};

}  // namespace belvani
