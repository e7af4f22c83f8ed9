// eksikgun ("Eksik Gün Bildirimi EK-10"): the people of a month who have missing days, listed and printed as every
// paper that shows its rows (listelibelgeekrani.h), and filled into the form EK-10, which can be moved and changed by
// hand before it goes to the printer (yzckopy).
//
//   F11 " EK-10 Formu"
#pragma once

#include "screens/documents/listelibelgeekrani.h"

namespace belvani {

class eksikgun : public ListeliBelgeEkrani {
 public:
  eksikgun(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Ek10();
};

}  // namespace belvani
