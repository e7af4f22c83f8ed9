// yapifrm ("Yapı Ayarları"): where the program's files and the companies lie, the latter also on a server.
#pragma once

#include "ui/form.h"

namespace belvani {

class yapifrm : public Form {
 public:
  explicit yapifrm(EkranBaglami& baglam);

 private:
  void Kaydet();
  void DizinSec(xtext& alan);
};

}  // namespace belvani
