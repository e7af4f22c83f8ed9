// Values of a PostgreSQL server in its binary form.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/store/motor.h"

namespace belvani {

// Numbers of the types that the program's tables and sums have, as every server has them.
enum class PgTip : unsigned {
  Mantik = 16,
  Bayt = 17,
  Tam8 = 20,
  Tam2 = 21,
  Tam4 = 23,
  Metin = 25,
  No = 26,
  Kayan4 = 700,
  Kayan8 = 701,
  Ondalik = 1700,
};

// What kind of value an answer of this type is to a reader; sums of whole numbers come as decimals without a fraction.
Komut::Tur PgTuru(unsigned tip, std::string_view ham);
// Zero for what is no number.
std::int64_t PgTam(unsigned tip, std::string_view ham);
double PgSayi(unsigned tip, std::string_view ham);

// Fields of a row for "copy … (format binary)".
class PgKopyaSatiri {
 public:
  static std::string Bas();  // before the first row
  static std::string Son();  // behind the last

  explicit PgKopyaSatiri(std::string& hedef) : hedef_(hedef) {}
  void Basla(int alanSayisi);
  void Null();
  // Throws MotorHatasi (Kisit) when the column's type cannot hold it.
  void Tam(unsigned tip, std::int64_t deger);
  void Sayi(unsigned tip, double deger);
  void Metin(std::string_view deger);

 private:
  std::string& hedef_;
};

// A text as the server takes it; it knows no zero byte in one, nor letters that are none. Throws MotorHatasi (Kisit).
std::string_view PgMetni(std::string_view metin);
// The shortest digits that read as the same number again.
std::string PgSayiMetni(double sayi);

}  // namespace belvani
