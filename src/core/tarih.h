// Tarih: a calendar day, possibly Null (`Tarih()`; a person who is employed has a Null leaving date). No clock time.
//
// Inside it is the day count from 30.12.1899, the serial number of the parameter files. In the store a date is ISO
// text, on screen and paper "dd.MM.yyyy". Days from 01.01.0100 to 31.12.9999; anything else is Null.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace belvani {

class Tarih {
 public:
  constexpr Tarih() = default;
  // A day that does not exist (31.02.2008) gives Null.
  Tarih(int yil, int ay, int gun);

  static Tarih SeriNodan(double seri);
  static Tarih IsoOku(std::string_view metin);    // "2008-02-29"
  static Tarih MetinOku(std::string_view metin);  // "29.02.2008"; also one-digit day and month
  static Tarih Bugun();                           // today, local time; see core/saat.h

  constexpr bool Bos() const { return seri_ == BosSeri; }
  constexpr std::int32_t SeriNo() const { return seri_; }  // only of a day
  int Yil() const;                                         // these three give 0 for Null
  int Ay() const;
  int Gun() const;

  std::string Iso() const;        // "" for Null
  std::string Metin() const;      // "dd.MM.yyyy", "" for Null
  std::string KisaMetin() const;  // "dd.MM.yy", "" for Null
  std::string UzunMetin() const;  // "12 Mart 2005 Cumartesi", "" for Null
  std::string_view GunAdi() const;

  Tarih Ekle(int gun) const;  // Null stays Null

  // Null sorts before every day.
  constexpr auto operator<=>(const Tarih&) const = default;

 private:
  static constexpr std::int32_t BosSeri = std::numeric_limits<std::int32_t>::min();
  std::int32_t seri_ = BosSeri;
};

// Days from a to b, both ends counted. Both must be days.
int GunSayisi(Tarih a, Tarih b);

// Length of a month: 28 to 31.
int AyinGunSayisi(int yil, int ay);

inline constexpr std::array<std::string_view, 12> AyAdlari{"Ocak",   "Şubat",   "Mart",  "Nisan", "Mayıs", "Haziran",
                                                           "Temmuz", "Ağustos", "Eylül", "Ekim",  "Kasım", "Aralık"};

// ay 1 to 12.
std::string_view AyAdi(int ay);

}  // namespace belvani
