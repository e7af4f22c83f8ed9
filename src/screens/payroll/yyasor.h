// yyasor ("Yasal Oranlar"): premium rates of the insurance branches, minimum wage, limits of the premium base and the
// other single figures of the law.
#pragma once

#include "screens/payroll/parametreekrani.h"
#include "ui/satirtablosu.h"

namespace belvani {

// A branch with the rates of both sides.
struct DalSatiri {
  std::uint8_t no = 0;
  std::string ack;
  OranSatiri isci, isveren;
};

class yyasor : public ParametreEkrani {
 public:
  yyasor(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Goster();
  void Kaydet();
  bool SatirAl(int satir);

  dclist* liste_;
  SatirTablosu<DalSatiri> tablo_;
  std::vector<DalSatiri> dallar_;
  QLabel* uyari_;
};

}  // namespace belvani
