#include "core/saat.h"

#include <utility>

namespace belvani {
namespace {

Tarih ayarliGun;             // Null: the clock's
std::int64_t ayarliAn = -1;  // -1: the clock's

Tarih SaatinGunu() {
  const std::tm yerel = YerelZaman(SimdikiAn());
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

std::int64_t SimdikiAn() {
  return ayarliAn >= 0 ? ayarliAn : std::int64_t(std::time(nullptr));
}

SabitAn::SabitAn(std::int64_t an) : onceki_(std::exchange(ayarliAn, an)) {}

SabitAn::~SabitAn() {
  ayarliAn = onceki_;
}

void SabitAn::Gec(std::int64_t saniye) {
  ayarliAn += saniye;
}

std::tm YerelZaman(std::int64_t an) {
  const std::time_t zaman = an;
  std::tm yerel{};
  localtime_r(&zaman, &yerel);
  return yerel;
}

std::string AnMetni(std::int64_t an) {
  const std::tm yerel = YerelZaman(an);
  char metin[32] = {};
  std::strftime(metin, sizeof metin, "%d.%m.%Y %H:%M", &yerel);
  return metin;
}

}  // namespace belvani
