// otokes ("Otomatik Kesinti"): keeps nothing; it says where deductions are entered.
#pragma once

#include "ui/form.h"

namespace belvani {

class otokes : public Form {
 public:
  explicit otokes(EkranBaglami& baglam);
};

}  // namespace belvani
