// A text paper drawn as its printer would print it, letter under letter: for the preview, and to be kept as a PDF.
//
// Ten letters to the inch, six lines; lines of over 80 letters are condensed to 17. The sheet is as wide as the longest
// line needs, and as long as the lines of a page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/cizilenbelge.h"

namespace belvani {

// Lines that fit in letters of normal width; longer ones are condensed on the printer too.
constexpr std::size_t NormalSatirHarfi = 80;

// The parts of a text between the letters `ayrac`; at least one. They lie in the text itself.
std::vector<std::string_view> Parcala(std::string_view metin, char ayrac);

// The letters of the longest line.
std::size_t EnUzunSatir(std::string_view metin);

class MetinCizimi final : public CizilenBelge {
 public:
  // Lines end in "\n", pages are parted by "\f".
  MetinCizimi(std::string metin, int satirSayisi);

  int SayfaSayisi() const override { return int(sayfalar_.size()); }
  void SayfaCiz(int no, Tuval& tuval) const override;

 private:
  std::string metin_;
  std::vector<std::string_view> sayfalar_;
  KagitBoyu kagit_;
  YaziBicimi yazi_;
};

}  // namespace belvani
