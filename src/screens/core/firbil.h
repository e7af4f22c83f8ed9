// firbil ("Firma Bilgileri"): the company card.
#pragma once

#include "core/session/firmabilgi.h"
#include "ui/form.h"

namespace belvani {

class firbil : public Form {
 public:
  explicit firbil(EkranBaglami& baglam);

 private:
  void Kaydet();
  void OraniGoster();

  Firma firma_;
};

}  // namespace belvani
