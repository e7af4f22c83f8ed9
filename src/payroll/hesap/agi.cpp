#include "payroll/hesap/agi.h"

namespace belvani {

Tek AgiOrani(const AgiTablosu& tablo, const Aile& aile) {
  constexpr int EnCokCocuk = 4;
  const int cocuk = std::min(aile.agiCocuk, EnCokCocuk);
  double oran = tablo.AgiKendisi.Sayi();
  if (aile.agiEs > 0) oran += tablo.AgiEsi.Sayi();
  if (cocuk > 2)
    oran += 2 * tablo.AgiCocuk12.Sayi() + tablo.AgiCocuk3.Sayi() + (cocuk - 3) * tablo.AgiCocuk4.Sayi();
  else
    oran += cocuk * tablo.AgiCocuk12.Sayi();
  return Tek(oran);
}

Tutar AgiHesapla(const AgiTablosu& tablo, Tek agioran, Tek ilkDilimOrani, Tutar gvtutar, Yuvarlayici yuvarla) {
  const Tutar tutar = yuvarla(tablo.AgiTaban.Sayi() * (agioran.Sayi() / 100) * (ilkDilimOrani.Sayi() / 100));
  return std::min(tutar, gvtutar);
}

}  // namespace belvani
