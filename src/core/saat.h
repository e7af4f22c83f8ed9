// Where Tarih::Bugun() takes the day from, and what needs the moment its seconds: the computer's clock, unless someone
// has set them.
//
//   const SabitGun gun(Tarih(2009, 3, 3));  // a test that must not depend on when it runs
//   SabitAn an(1'000'000); an.Gec(300);     // and one that must not wait
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

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

// Seconds since 1970.
std::int64_t SimdikiAn();

// While it lives, it is this moment, and today its day.
class SabitAn {
 public:
  explicit SabitAn(std::int64_t an);
  ~SabitAn();
  SabitAn(const SabitAn&) = delete;
  SabitAn& operator=(const SabitAn&) = delete;

  void Gec(std::int64_t saniye);

 private:
  std::int64_t onceki_;
};

// The moment on the computer's own calendar and clock.
std::tm YerelZaman(std::int64_t an);

// As a user reads it, in the computer's time: "22.11.2026 09:15".
std::string AnMetni(std::int64_t an);

}  // namespace belvani
