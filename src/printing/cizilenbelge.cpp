#include "printing/cizilenbelge.h"

#include "core/asama.h"

namespace belvani {

void SayfalariCiz(const CizilenBelge& belge, Tuval& tuval, Ilerleme* ilerleme) {
  const int sayfalar = belge.SayfaSayisi();
  Asama asama(ilerleme, std::size_t(sayfalar));
  for (int no = 1; no <= sayfalar; ++no) {
    asama.Adim();
    belge.SayfaCiz(no, tuval);
  }
}

}  // namespace belvani
