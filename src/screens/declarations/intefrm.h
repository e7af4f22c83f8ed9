// intefrm ("İnternet İşlemleri"): opens the institution's service in the user's browser, where the user hands in the
// declaration by hand, and shows where the file lies. The program itself sends nothing.
#pragma once

#include "ui/form.h"

namespace belvani {

class intefrm : public Form {
 public:
  intefrm(EkranBaglami& baglam, const std::string& dosya);

 private:
  void AdresAc();
  void DizinAc();

  std::string dosya_;
};

}  // namespace belvani
