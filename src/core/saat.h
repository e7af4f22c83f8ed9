// Where Tarih::Bugun() takes the day from: the computer's clock, unless someone has set the day.
//
//   const SabitGun gun(Tarih(2009, 3, 3));  // a test that must not depend on when it runs
#pragma once

#include "core/tarih.h"

namespace belvani {

// While it lives, today is this day.
class SabitGun {
 public:
  explicit SabitGun(Tarih gun);
  ~SabitGun();
  SabitGun(const SabitGun&) = delete;
  SabitGun& operator=(const SabitGun&) = delete;

 private:
  Tarih onceki_;
};

}  // namespace belvani
