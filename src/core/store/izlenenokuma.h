// IzlenenOkuma: the rows of a statement, read while somebody watches who may stop it. He is asked at each row, and in
// the engine's work before the first one too, which may be the sorting of a whole year.
//
//   for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) { … }   // a null `ilerleme`: nobody watches
//
// What he does meanwhile must leave the store alone (ui/uzunis.h sees to it).
#pragma once

#include "core/asama.h"
#include "core/store/motor.h"

namespace belvani {

class IzlenenOkuma {
 public:
  IzlenenOkuma(Komut& komut, Ilerleme* ilerleme) : komut_(komut), asama_(ilerleme) {
    if (ilerleme != nullptr) komut_.AradaSor([this] { asama_.Sor(); });
  }
  ~IzlenenOkuma() { komut_.AradaSor({}); }
  IzlenenOkuma(const IzlenenOkuma&) = delete;
  IzlenenOkuma& operator=(const IzlenenOkuma&) = delete;

  // A row stands ready.
  bool Adim() {
    if (!komut_.Adim()) return false;
    asama_.Adim();
    return true;
  }

 private:
  Komut& komut_;
  Asama asama_;
};

}  // namespace belvani
