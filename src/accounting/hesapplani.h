// The chart of accounts: the shipped one, with the accounts of the uniform chart that a payroll needs, and that of an
// accounting store, read whole and searched while its user types.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "accounting/kardestablolar.h"
#include "core/sonuc.h"
#include "core/store/motor.h"
#include "core/turkce.h"

namespace belvani {

// data/hesapplani/hesapplani.csv
Sonuc<std::vector<Hesplan>> HazirHesapPlani();

// What the lookup window searches in, in the order of its list.
enum class HesapAramaAlani { Kod, Isim, Yisim };

class HesapPlani {
 public:
  HesapPlani() = default;
  explicit HesapPlani(std::vector<Hesplan> hesaplar);
  static HesapPlani Oku(Motor& motor);  // throws MotorHatasi

  // By its code, case ignored; null when there is none.
  const Hesplan* Bul(std::string_view kod) const;
  std::string Adi(std::string_view kod) const;  // "" for an unknown account

  // Accounts whose field begins with the text, or has it anywhere, in the order of their codes. Every letter of the
  // text stands for itself, case is ignored.
  std::vector<const Hesplan*> Ara(HesapAramaAlani alan, std::string_view metin, bool icinde) const;

 private:
  struct Kucuk {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return TurkceKarsilastir(a, b) < 0; }
  };

  std::vector<Hesplan> hesaplar_;
  std::map<std::string, std::size_t, Kucuk> yerler_;
};

}  // namespace belvani
