// Deger: the value of a field of the store, of whatever type.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "core/tarih.h"
#include "core/tutar.h"

namespace belvani {

struct Null {
  bool operator==(const Null&) const = default;
};

using Baytlar = std::vector<std::uint8_t>;

using Deger = std::variant<Null, std::string, std::int64_t, double, Tutar, Tarih, bool, Baytlar>;

inline bool NullMu(const Deger& d) {
  return std::holds_alternative<Null>(d);
}

// The value in the asked form; a value of another form gives "", 0, Null date, false.
std::string MetinDegeri(const Deger& d);  // also numbers and dates as they are shown
std::int64_t TamDegeri(const Deger& d);   // whole numbers and booleans
double SayiDegeri(const Deger& d);        // any number
Tutar TutarDegeri(const Deger& d);        // any number
Tarih TarihDegeri(const Deger& d);
bool MantikDegeri(const Deger& d);  // any number: not 0

}  // namespace belvani
