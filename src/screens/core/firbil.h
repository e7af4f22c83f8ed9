// firbil ("Firma Bilgileri"): the company card.
#pragma once

#include "core/session/firmabilgi.h"
#include "payroll/hazirlik/parametredeposu.h"
#include "ui/form.h"

namespace belvani {

class firbil : public Form {
 public:
  firbil(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Kaydet();
  void OraniGoster();

  FirmaDurumu& durum_;
  Okunan<Firma> firma_;
};

}  // namespace belvani
