// Counts the requests for an answer in what a client of the database says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace belvani::test {

// Messages are a letter, four bytes of length (which counts itself) and the rest; the first one of a connection has no
// letter. They may come in any pieces.
class TurSayaci {
 public:
  // How many of them end in this piece.
  int Say(std::string_view parca) {
    int tur = 0;
    for (const char c : parca) tur += Bayt(static_cast<unsigned char>(c));
    return tur;
  }

 private:
  static constexpr int BaslikBoyu = 5;

  int Bayt(unsigned char c) {
    if (kalan_ > 0) {
      --kalan_;
      return 0;
    }
    if (yer_ == 0) harf_ = char(c);
    if (yer_ > 0) boy_ = boy_ << 8 | c;
    if (++yer_ < BaslikBoyu) return 0;
    return Bitir();
  }
  // The header is whole. A copy's end waits for an answer; a Sync right behind it asks for the same one.
  int Bitir() {
    kalan_ = boy_ > 4 ? boy_ - 4 : 0;
    yer_ = 0;
    boy_ = 0;
    const char onceki = onceki_;
    onceki_ = harf_;
    if (ilk_) {
      ilk_ = false;
      return 0;
    }
    if (harf_ == 'S') return onceki != 'c' && onceki != 'f';
    return harf_ == 'Q' || harf_ == 'F' || harf_ == 'c' || harf_ == 'f';
  }

  bool ilk_ = true;  // the message without a letter
  int yer_ = 1;      // in the header
  char harf_ = 0, onceki_ = 0;
  std::uint32_t boy_ = 0;
  std::uint32_t kalan_ = 0;  // of the body
};

}  // namespace belvani::test
