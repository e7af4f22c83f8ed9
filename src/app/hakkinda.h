// frmAbout ("Hakkında"): versions, paths and licence, as a support call asks for them.
#pragma once

#include "ui/form.h"

namespace belvani {

class frmAbout : public Form {
 public:
  explicit frmAbout(EkranBaglami& baglam);
};

}  // namespace belvani
