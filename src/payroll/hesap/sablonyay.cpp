#include "payroll/hesap/sablonyay.h"

#include <numeric>

#include "payroll/hesap/satirlar.h"

namespace belvani {

std::optional<Tutar> SablonYardimi(const Sablon& sablon, int i, int SskGun, int ng, Yuvarlayici yuvarla) {
  const auto yay = [&](double sablonGunu, int gun) {
    const double tutar = sablon.SablonYardim[std::size_t(i)].Sayi();
    return sablonGunu > 0 ? yuvarla(tutar / sablonGunu * gun) : Tutar();
  };
  switch (SablonTipi(sablon.SablonYardimTip[std::size_t(i)])) {
    case SablonTipi::ToplamGun: {
      const auto ilk = sablon.SablonGun.begin();
      return yay(std::accumulate(ilk, ilk + GunSatiriSayisi, 0.0, [](double t, Tek g) { return t + g.Sayi(); }),
                 SskGun);
    }
    case SablonTipi::FiiliGun:
      return yay(sablon.SablonGun[0].Sayi(), ng);
    case SablonTipi::Sabit:
      break;
  }
  return std::nullopt;
}

}  // namespace belvani
