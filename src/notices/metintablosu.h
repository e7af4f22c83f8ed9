// MetinTablosu: a framed table in lines of fixed-width letters.
//
//   MetinTablosu tablo({4, 12});
//   tablo.Ust();                    // "┌────┬────────────┐"
//   tablo.Satir({"12", "Işıl Öz"}); // "│12  │Işıl Öz     │"
//   tablo.Ara();                    // "├────┼────────────┤"
//   tablo.Alt();                    // "└────┴────────────┘"
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace belvani {

class MetinTablosu {
 public:
  explicit MetinTablosu(std::vector<int> enler) : enler_(std::move(enler)) {}

  std::string Ust() const { return Cizgi("┌", "┬", "┐"); }
  std::string Ara() const { return Cizgi("├", "┼", "┤"); }
  std::string Alt() const { return Cizgi("└", "┴", "┘"); }
  // Where a row of one column comes before or after these, in the same frame.
  std::string Acilma() const { return Cizgi("├", "┬", "┤"); }
  std::string Birlesme() const { return Cizgi("├", "┴", "┤"); }
  // Cells that are missing are blank. Letters that would command the printer are left out, what does not fit is cut.
  std::string Satir(const std::vector<std::string>& hucreler) const;
  std::string OrtaliSatir(const std::vector<std::string>& hucreler) const;

 private:
  std::string Cizgi(std::string_view sol, std::string_view orta, std::string_view sag) const;

  std::vector<int> enler_;
};

// A text in as many letters: blanks behind it, or on both sides.
std::string Doldurulmus(std::string_view metin, int en);
std::string Ortalanmis(std::string_view metin, int en);
// The page of these lines, without blanks at their ends.
std::string SayfaMetni(const std::vector<std::string>& satirlar);

}  // namespace belvani
