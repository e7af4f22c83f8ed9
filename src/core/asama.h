// Asama: one stage of long work, counted step by step for whoever watches it, and stopped where he wants it stopped.
//
//   Asama asama(ilerleme, satirlar.size());  // a null `ilerleme`: nobody watches
//   for (const auto& satir : satirlar) {
//     asama.Adim();
//     …
//   }
//
// Stopped work is thrown out of: Vazgecilmis goes through everything up to whoever began the work (ui/uzunis.h), so
// that no half of a result can pass for the whole. Asking costs next to nothing; ask at every row.
#pragma once

#include <functional>

#include "core/bildirim.h"

namespace belvani {

// Not a std::exception: nothing that catches failures may take it for one.
struct Vazgecilmis {};

class Asama {
 public:
  // A whole of 0: nobody knows.
  explicit Asama(Ilerleme* ilerleme, std::size_t toplam = 0) : ilerleme_(ilerleme), toplam_(toplam) {}

  void Adim() {
    Sor();
    ++biten_;
  }
  // In the middle of a step.
  void Sor() const {
    if (ilerleme_ != nullptr && !ilerleme_->Adim(biten_, toplam_)) throw Vazgecilmis{};
  }

 private:
  Ilerleme* ilerleme_;
  std::size_t toplam_;
  std::size_t biten_ = 0;
};

// Has slow work done, and tells whether it was: not, when it was stopped. For logic that asks its user before and after
// the work, never inside it.
using Yurutucu = std::function<bool(const std::function<void(Ilerleme*)>& is)>;

// At once, with nobody watching.
inline bool HemenYurut(const std::function<void(Ilerleme*)>& is) {
  is(nullptr);
  return true;
}

}  // namespace belvani
