// devir ("Devir İşlemleri"): takes the company's working period one month on. Pay records stay as they are.
#pragma once

#include "payroll/hazirlik/parametredeposu.h"
#include "ui/form.h"

namespace belvani {

class devir : public Form {
 public:
  devir(EkranBaglami& baglam, ParametreDeposu& parametreler);

  void FirmaDegisti() override;

 private:
  void Gec();

  ParametreDeposu& parametreler_;
};

}  // namespace belvani
