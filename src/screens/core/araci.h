// araci ("Aracı Bilgileri"): the subcontractor.
#pragma once

#include "core/session/aracibilgi.h"
#include "ui/form.h"

namespace belvani {

class araci : public Form {
 public:
  explicit araci(EkranBaglami& baglam);

 private:
  void Kaydet();

  Okunan<Arac> araci_;
};

}  // namespace belvani
