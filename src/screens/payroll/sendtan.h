// sendtan ("Sendika Tanımları"): the unions and how their dues are taken.
#pragma once

#include "screens/payroll/parametreekrani.h"

namespace belvani {

class sendtan : public ParametreEkrani {
 public:
  sendtan(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void ListeyiGoster();
  void Bul(const std::string& kod);
  void Kaydet();
  void Sil();
  void Yenile();

  dclist* liste_;
  Sendika sendika_;
};

}  // namespace belvani
