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
    Soyle<bool>({true, Al(giris.Ac())});
  }
  // As a screen does.
  template <class Hal>
  Hal Soyle(const Gelisme<Hal>& gelisme) {
    for (const Kusur& soz : gelisme.sozler) bildirim.KusuruGoster(soz);
    return gelisme.hal;
  }
  KodSonucu KodAl(std::string_view kod) { return Soyle(giris.KodAl(kod)); }
  KapanisSonucu Kapat() { return Soyle(giris.Kapat()); }
  bool MevzuatUygun() { return Soyle(giris.MevzuatUygun()); }
};

}  // namespace belvani::test
