// MetinFormu: a page of a form for printers of fixed-width letters: lines of box-drawing letters, into which values are
// written over what stands there.
//
// Lines and columns are counted from 1, columns in letters.
//
//   MetinFormu form("┌─┬─┬─┐\n│ │ │ │\n└─┴─┴─┘");
//   form.Basamaklar(2, 2, 2, 3, "42");  // "│ │4│2│"
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace belvani {

// A place in the lines of a form, `en` letters wide.
struct MetinYeri {
  int satir = 0;
  int kolon = 0;
  int en = 0;
};

class MetinFormu {
 public:
  explicit MetinFormu(std::string_view sablon);

  // From the first letter of the place on; what does not fit is cut. Letters that would command the printer are left
  // out. What lies outside the template is passed over.
  void Koy(const MetinYeri& yer, std::string_view metin);
  // So that the last letter stands in the last of the place.
  void KoySagda(const MetinYeri& yer, std::string_view metin);

  // One letter in each of `hucre` cells `adim` columns apart, the last one in the last cell. With more letters than
  // cells they stand close together, over the lines between the cells: a number that loses digits would be another.
  void Basamaklar(int satir, int ilkKolon, int adim, int hucre, std::string_view metin);

  // UTF-8, lines ending in "\n", no blanks at the end of a line.
  std::string Metin() const;

 private:
  std::vector<std::vector<std::string>> satirlar_;  // letters of each line
};

// Pages parted by a form feed.
std::string SayfalariBirlestir(std::span<const std::string> sayfalar);

// The same with frames of "+", "-" and "|", for printers without box-drawing letters.
std::string DuzCerceveli(std::string_view metin);

}  // namespace belvani
