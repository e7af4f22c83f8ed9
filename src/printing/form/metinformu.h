// MetinFormu: a page of a form for printers of fixed-width letters, from a template that looks as the page will: lines
// of letters, with marks where values go.
//
//   «soyadi.....»     a value from the left; the place is as wide as the mark, what does not fit is cut
//   «......tutar»     a value that ends where the mark ends; what does not fit is cut at its end too
//   │«│n│o│.│»│       one letter a cell, the last one in the last cell; with more letters than cells they stand close
//                     together, over the lines between: a number that loses digits would be another
//   ☐                 a place of one letter; the list of boxes names them in the order in which they are read
//
//   MetinFormu form("│ Adı : «adi......» │ [☐] Kadın │«│n│o│»│", {"kadin"});
//   form.Koy("adi", "Işıl");
//   form.Koy("no", "42");
//   form.Koy("kadin", "X");
//   form.Metin();  // "│ Adı : Işıl       │ [X] Kadın │ │ │4│2│"
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "printing/form/formsayfasi.h"

namespace belvani {

// A place in the lines of a form, `en` letters wide. Lines and columns are counted from 1, columns in letters.
struct MetinYeri {
  int satir = 0;
  int kolon = 0;
  int en = 0;
};

class MetinFormu {
 public:
  explicit MetinFormu(std::string_view sablon, const std::vector<std::string_view>& kutular = {});

  // Into all places of this name; one at least must be there.
  void Koy(std::string_view ad, std::string_view deger);
  // The values of a drawn form into their places; those that have none here are passed over.
  void Doldur(const FormSayfasi& sayfa);

  // Values over what stands there: from the first letter of the place on, what does not fit is cut; or so that the last
  // letter stands in the last of the place. Letters that would command the printer are left out. What lies outside the
  // template is passed over.
  void Koy(const MetinYeri& yer, std::string_view metin);
  void KoySagda(const MetinYeri& yer, std::string_view metin);

  // UTF-8, lines ending in "\n", no blanks at the end of a line. Every place must have been given its value.
  std::string Metin() const;

 private:
  struct Isaret {
    std::string ad = {};
    MetinYeri yer;  // `en` cells, where they are cells
    int adim = 1;   // from cell to cell
    bool sagda = false;
    bool dolu = false;
  };

  void IsaretAl(int satir, int kolon);
  void IsaretDoldur(Isaret& isaret, std::string_view deger);

  std::vector<std::vector<std::string>> satirlar_;  // letters of each line
  std::vector<Isaret> isaretler_;
};

// Pages parted by a form feed.
std::string SayfalariBirlestir(std::span<const std::string> sayfalar);

// The same with frames of "+", "-" and "|", for printers without box-drawing letters.
std::string DuzCerceveli(std::string_view metin);

}  // namespace belvani
