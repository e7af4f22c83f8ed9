#include "printing/cizilenbelge.h"

namespace belvani {

bool SayfalariCiz(const CizilenBelge& belge, Tuval& tuval, Ilerleme* ilerleme) {
  const int sayfalar = belge.SayfaSayisi();
  for (int no = 1; no <= sayfalar; ++no) {
    if (ilerleme != nullptr && !ilerleme->Adim(std::size_t(no - 1), std::size_t(sayfalar))) return false;
    belge.SayfaCiz(no, tuval);
  }
  return true;
}

}  // namespace belvani
