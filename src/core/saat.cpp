#include "core/saat.h"

#include <ctime>
#include <utility>

namespace belvani {
namespace {

Tarih ayarliGun;  // Null: the clock's

Tarih SaatinGunu() {
  const std::time_t simdi = std::time(nullptr);
  std::tm yerel{};
  localtime_r(&simdi, &yerel);
  return Tarih(yerel.tm_year + 1900, yerel.tm_mon + 1, yerel.tm_mday);
}

}  // namespace

Tarih Tarih::Bugun() {
  return ayarliGun.Bos() ? SaatinGunu() : ayarliGun;
}

SabitGun::SabitGun(Tarih gun) : onceki_(std::exchange(ayarliGun, gun)) {}

SabitGun::~SabitGun() {
  ayarliGun = onceki_;
}

}  // namespace belvani
