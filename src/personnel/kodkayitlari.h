// What a store holds under a person's code, beside his card. A code that has any of it is given to nobody else: he
// would get another one's past.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/store/motor.h"

namespace belvani {

struct KodKaydi {
  std::string_view tablo;  // "brdonceki": pay records kept of a month as it was
  std::string_view ad;     // "eş ve çocuk"
  std::size_t sayi = 0;
};

// The tables that hold records of the code, with their number. Throws MotorHatasi.
std::vector<KodKaydi> KodunKayitlari(Motor& motor, std::string_view kod);

// "eş ve çocuk 3, devir 1".
std::string KayitSayilari(const std::vector<KodKaydi>& kayitlar);

}  // namespace belvani
