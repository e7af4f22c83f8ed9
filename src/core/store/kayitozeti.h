// KayitOzeti: a checksum of the values of one record as the store keeps them.
//
// The values are bound to it in the order of the schema, as they are bound to a statement, so that the writer of a
// record and the check of a store make it out of the same calls. Null, whole numbers, reals, texts and bytes differ
// in it, and so do a value and its neighbour's: any single changed bit of any value gives another checksum.
#pragma once

#include <array>
#include <cassert>
#include <cstdint>
#include <string_view>

#include "core/deger.h"

namespace belvani {

class KayitOzeti {
 public:
  void Bosalt() { sayi_ = 0; }

  void NullBagla(int) { Ekle('n', 0); }
  void TamBagla(int, std::int64_t d) { Ekle('t', d); }
  void SayiBagla(int, double d);
  void MetinBagla(int, std::string_view d);
  void BaytBagla(int, const Baytlar& d);

  // Of all that was bound since it was emptied.
  std::int64_t Deger() const;

 private:
  static constexpr std::size_t EnCokDeger = 128;

  void Ekle(char tur, std::int64_t deger) {
    assert(sayi_ < EnCokDeger);
    turler_[sayi_] = tur;
    degerler_[sayi_++] = deger;
  }

  std::array<std::int64_t, EnCokDeger> degerler_;
  std::array<char, EnCokDeger> turler_;
  std::size_t sayi_ = 0;
};

}  // namespace belvani
