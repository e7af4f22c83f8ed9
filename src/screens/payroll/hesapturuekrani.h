// HesapTuruEkrani: the fifty insurance branches as a list, with the columns that a screen wants. A row is saved when it
// is left, unless it takes another one's number.
#pragma once

#include "screens/payroll/listeekrani.h"

namespace belvani {

class HesapTuruEkrani : public ListeEkrani<HesapTuru> {
 protected:
  using ListeEkrani::ListeEkrani;

  // To be called once the screen is made.
  void TurleriAc(bool degisir);
};

}  // namespace belvani
