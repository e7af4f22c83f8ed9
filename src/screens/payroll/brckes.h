// brckes ("-Borç Kesintisi-"): how much of the net pay goes to a debt.
#pragma once

#include "payroll/hazirlik/giris.h"
#include "ui/form.h"

namespace belvani {

class brckes : public Form {
 public:
  brckes(EkranBaglami& baglam, BordroGirisi& giris);

 private:
  void Onayla();

  BordroGirisi& giris_;
};

}  // namespace belvani
