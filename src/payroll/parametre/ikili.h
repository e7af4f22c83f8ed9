// Bytes of the parameter files: little-endian, no header, no padding between fields.
//
// IkiliYazici and IkiliOkuyucu have the same routines, so the layout of a record is written down once and serves both
// directions. A single is IEEE 754 binary32, an amount a 64-bit integer of ten-thousandths, a day a binary64 count from
// 30.12.1899, a text code page 1254 of fixed width, padded with blanks.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/tarih.h"
#include "core/tek.h"
#include "core/turkce.h"
#include "core/tutar.h"

namespace belvani {

class IkiliYazici {
 public:
  void Bayt(std::uint8_t b) { baytlar_ += char(b); }
  void Kisa(std::int16_t s) { Ham(std::uint16_t(s)); }
  void Tekil(Tek t) { Ham(std::bit_cast<std::uint32_t>(t.Kayan())); }
  void Para(Tutar t) { Ham(std::uint64_t(t.Ham())); }
  // Not for Null, which these files cannot say.
  void Gun(Tarih t) { Ham(std::bit_cast<std::uint64_t>(double(t.SeriNo()))); }
  // What is longer than the field is cut.
  void Metin(const std::string& metin, std::size_t en) {
    std::string alan = KodSayfasina(metin, KodSayfasi::Windows1254);
    alan.resize(en, ' ');
    baytlar_ += alan;
  }

  const std::string& Baytlar() const { return baytlar_; }

 private:
  template <class T>
  void Ham(T sayi) {
    for (std::size_t i = 0; i < sizeof(T); ++i) baytlar_ += char(std::uint8_t(sayi >> (8 * i)));
  }

  std::string baytlar_;
};

// Past the end of the bytes everything reads as zero.
class IkiliOkuyucu {
 public:
  explicit IkiliOkuyucu(std::string_view baytlar) : kalan_(baytlar) {}

  void Bayt(std::uint8_t& b) { b = Ham<std::uint8_t>(); }
  void Kisa(std::int16_t& s) { s = std::int16_t(Ham<std::uint16_t>()); }
  // A single that is no finite number reads as 0.
  void Tekil(Tek& t) {
    const float kayan = std::bit_cast<float>(Ham<std::uint32_t>());
    if (!std::isfinite(kayan)) ++gecersiz_;
    t = Tek(double(kayan));
  }
  void Para(Tutar& t) { t = Tutar::Hamdan(std::int64_t(Ham<std::uint64_t>())); }
  // A count that is no day of the calendar reads as Null.
  void Gun(Tarih& t) {
    t = Tarih::SeriNodan(std::bit_cast<double>(Ham<std::uint64_t>()));
    if (t.Bos()) ++gecersiz_;
  }
  void Metin(std::string& metin, std::size_t en) {
    const std::string_view alan = kalan_.substr(0, en);
    kalan_.remove_prefix(alan.size());
    const auto son = alan.find_last_not_of(std::string_view(" \0", 2));
    metin = DenetimsizMetin(KodSayfasindan(alan.substr(0, son == alan.npos ? 0 : son + 1), KodSayfasi::Windows1254));
  }

  // How many fields held no number or no day.
  int Gecersiz() const { return gecersiz_; }

 private:
  template <class T>
  T Ham() {
    T sayi = 0;
    const std::size_t n = std::min(sizeof(T), kalan_.size());
    for (std::size_t i = 0; i < n; ++i) sayi = T(sayi | T(T(std::uint8_t(kalan_[i])) << (8 * i)));
    kalan_.remove_prefix(n);
    return sayi;
  }

  std::string_view kalan_;
  int gecersiz_ = 0;
};

}  // namespace belvani
