// fazmes ("Fazla Mesai Ayarlamaları"): wage multipliers and limits of the three overtime lines.
#pragma once

#include "screens/payroll/listeekrani.h"

namespace belvani {

class fazmes : public ListeEkrani<FazlaMesai> {
 public:
  fazmes(EkranBaglami& baglam, ParametreDeposu& parametreler);
};

}  // namespace belvani
