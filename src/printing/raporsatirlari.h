// RaporSatirlari: the rows of a report, packed to a quarter of what they take as rows: a list stands in memory as a
// whole, for its widths and sums are known at its end only. A row is made anew each time it is asked for.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "core/deger.h"
#include "core/siraimleci.h"
#include "core/tarih.h"
#include "core/tutar.h"

namespace belvani {

using Hucre = std::variant<Null, std::string, std::int64_t, Tutar, Tarih>;

struct RaporSatiri {
  std::vector<Hucre> hucreler;  // one for each column
  bool yeniSayfa = false;       // starts a page on paper
};

class RaporSatirlari {
 public:
  explicit RaporSatirlari(std::size_t kolonSayisi) : kolonSayisi_(kolonSayisi) {}

  // Its texts have no control characters.
  void Ekle(const RaporSatiri& satir);

  std::size_t size() const { return yeniSayfa_.size(); }
  bool empty() const { return yeniSayfa_.empty(); }
  RaporSatiri operator[](std::size_t sira) const;  // as it was put in
  Hucre Hucresi(std::size_t sira, std::size_t kolon) const;
  const std::vector<bool>& YeniSayfalar() const { return yeniSayfa_; }  // of each row

  SiraImleci<RaporSatirlari> begin() const { return {this, 0}; }
  SiraImleci<RaporSatirlari> end() const { return {this, size()}; }

  static constexpr std::size_t BlokBoyu = 256;  // rows that are packed together

 private:
  struct Blok {
    std::vector<std::int64_t> degerler;  // by row and column: a number, a day, where a text begins
    std::vector<std::uint8_t> turler;    // which of the kinds of Hucre
    std::string metinler;                // each ends with a zero
  };

  std::size_t kolonSayisi_;
  std::vector<Blok> bloklar_;
  std::vector<bool> yeniSayfa_;
};

}  // namespace belvani
