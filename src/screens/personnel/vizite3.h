// vizite3 ("Altı Aylık Sağlık Belgesi"): the certificate of a relative, good for six months.
#pragma once

#include "screens/personnel/yakinvizitesi.h"

namespace belvani {

class vizite3 : public YakinVizitesi {
 public:
  explicit vizite3(EkranBaglami& baglam);
};

}  // namespace belvani
