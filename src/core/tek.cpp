#include "core/tek.h"

#include <charconv>
#include <cmath>

namespace belvani {

double Tek::KisaOndalik(double sayi) {
  // Below a thousand, eighths are exact in single precision and are their own shortest decimal: the usual rates.
  const double sekizli = sayi * 8;
  if (std::fabs(sayi) < 1000 && sekizli == std::trunc(sekizli)) return sayi;
  const float kayan = float(sayi);
  if (!std::isfinite(kayan)) return 0;
  char metin[32];
  const auto yazilan = std::to_chars(metin, metin + sizeof metin, kayan);
  double kisa = 0;
  std::from_chars(metin, yazilan.ptr, kisa);
  return kisa;
}

}  // namespace belvani
