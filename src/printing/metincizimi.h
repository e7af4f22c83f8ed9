// A finished text paper, line by line through prnx: drawn as its printer would print it, letter under letter, for the
// preview and to be kept as a PDF; and as the bytes of that print, for a file.
//
// Lines of a text end in "\n", its pages are parted by "\f".
//
// Ten letters to the inch, six lines; lines of over 80 letters are condensed to 17. The sheet is as wide as the longest
// line needs, and as long as the lines of a page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/cizilenbelge.h"
#include "printing/prnx.h"

namespace belvani {

// Lines that fit in letters of normal width; longer ones are condensed on the printer too.
constexpr std::size_t NormalSatirHarfi = 80;

// The parts of a text between the letters `ayrac`; at least one. They lie in the text itself.
std::vector<std::string_view> Parcala(std::string_view metin, char ayrac);

// The lines of one page.
std::vector<std::string_view> SayfaSatirlari(std::string_view sayfa);

// The letters of the longest line.
std::size_t EnUzunSatir(std::string_view metin);

class MetinCizimi final : public CizilenBelge {
 public:
  MetinCizimi(std::string metin, int satirSayisi);

  int SayfaSayisi() const override { return int(sayfalar_.size()); }
  void SayfaCiz(int no, Tuval& tuval) const override;

 private:
  std::string metin_;
  std::vector<std::string_view> sayfalar_;
  prnxIzgara izgara_;
};

// Empty without any text.
std::string MetinBaytlari(const std::string& metin);

}  // namespace belvani
