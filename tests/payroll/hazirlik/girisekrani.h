// The state of the payroll screen on a company of its own.
#pragma once

#include "payroll/hazirlik/giris.h"
#include "sirket.h"

namespace belvani::test {

struct GirisEkrani : Sirket {
  ParametreDeposu depo{o};
  BordroGirisi giris{o, depo, bildirim};

  void Ac(int yil, int ay) {
    Al(depo.MevzuatiGetir(o, {yil, ay}, {}));
    ASSERT_TRUE(FirmaYukle(o));
    Al(depo.firma.Yukle());
    o.firma.firmayil = std::int16_t(yil);
    o.firma.firmaay = std::uint8_t(ay);
    ASSERT_TRUE(giris.Ac());
  }
};

}  // namespace belvani::test
