// muhbil ("Muhasebeci Bilgileri"): the accountant who signs the declarations.
#pragma once

#include "ui/form.h"

namespace belvani {

class muhbil : public Form {
 public:
  explicit muhbil(EkranBaglami& baglam);

 private:
  void Kaydet();
};

}  // namespace belvani
