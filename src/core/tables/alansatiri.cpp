#include "core/tables/alansatiri.h"

#include <cmath>

namespace belvani {

std::string AlanKusuru(const Alan& alan, const Deger& deger) {
  // The column's limit has been held key by key; a stored value beyond it, not touched, stays as it was.
  if (std::string kusur = TipKusuru(alan.tanim, deger); !kusur.empty() || alan.ek.enAz <= 0) return kusur;
  const double sayi = SayiDegeri(deger);
  if (sayi >= alan.ek.enAz && sayi <= alan.ek.enCok) return {};
  return std::to_string(int(alan.ek.enAz)) + " ile " + std::to_string(int(alan.ek.enCok)) + " arasında olmalı";
}

int SecenekSirasi(const Alan& alan, const Deger& deger, std::size_t sayi) {
  const double sira = SayiDegeri(deger) - alan.ek.listeTabani;
  return sira >= 0 && sira < double(sayi) && sira == std::floor(sira) ? int(sira) : -1;
}

}  // namespace belvani
