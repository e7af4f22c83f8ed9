#include "core/yuvarlama.h"

namespace belvani {

Tutar TutarCevir(Tutar tutar, int yil, Yuvarlayici yuvarla) {
  constexpr int YeniLiraOncesiSonYil = 2003;
  constexpr double AtilanSifirlar = 1'000'000;
  if (yil > YeniLiraOncesiSonYil && tutar.Sayi() > AtilanSifirlar) return yuvarla(tutar.Sayi() / AtilanSifirlar);
  return yuvarla(tutar);
}

}  // namespace belvani
