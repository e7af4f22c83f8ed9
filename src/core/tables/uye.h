// Between a member of a record struct and a Deger.
#pragma once

#include "core/tables/alan.h"

namespace belvani {

inline Deger UyeDegeri(const std::string& d) {
  return d;
}
inline Deger UyeDegeri(std::uint8_t d) {
  return std::int64_t(d);
}
inline Deger UyeDegeri(std::int16_t d) {
  return std::int64_t(d);
}
inline Deger UyeDegeri(std::int32_t d) {
  return std::int64_t(d);
}
inline Deger UyeDegeri(Tutar d) {
  return d;
}
inline Deger UyeDegeri(Tek d) {
  return d.Sayi();
}
inline Deger UyeDegeri(Tarih d) {
  return d.Bos() ? Deger(Null{}) : Deger(d);
}
inline Deger UyeDegeri(bool d) {
  return d;
}
inline Deger UyeDegeri(const Baytlar& d) {
  return d;
}

// The value must fit the column (DegerKusuru); Null gives zero, empty text, no date.
inline void UyeyeYaz(std::string& uye, const Deger& d) {
  uye = MetinDegeri(d);
}
inline void UyeyeYaz(std::uint8_t& uye, const Deger& d) {
  uye = std::uint8_t(TamDegeri(d));
}
inline void UyeyeYaz(std::int16_t& uye, const Deger& d) {
  uye = std::int16_t(TamDegeri(d));
}
inline void UyeyeYaz(std::int32_t& uye, const Deger& d) {
  uye = std::int32_t(TamDegeri(d));
}
inline void UyeyeYaz(Tutar& uye, const Deger& d) {
  uye = TutarDegeri(d);
}
inline void UyeyeYaz(Tek& uye, const Deger& d) {
  uye = Tek(SayiDegeri(d));
}
inline void UyeyeYaz(Tarih& uye, const Deger& d) {
  uye = TarihDegeri(d);
}
inline void UyeyeYaz(bool& uye, const Deger& d) {
  uye = MantikDegeri(d);
}
inline void UyeyeYaz(Baytlar& uye, const Deger& d) {
  const auto* b = std::get_if<Baytlar>(&d);
  uye = b == nullptr ? Baytlar() : *b;
}

}  // namespace belvani
