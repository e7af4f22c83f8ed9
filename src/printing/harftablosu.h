// The shapes and widths of letters: DejaVu fonts through Cairo. For the Cairo surfaces only; all others see tuval.h.
#pragma once

#include <array>
#include <cairo.h>
#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"
#include "printing/tuval.h"

namespace belvani {

struct Harf {
  unsigned long sekil = 0;  // number of the glyph in its font
  double en = -1;           // of letters one unit high
};

// A font in one weight. Widths are those of the unhinted shapes, in proportion at every size.
class HarfTablosu {
 public:
  static HarfTablosu& Al(YaziAilesi aile, YaziKalinligi kalinlik);
  ~HarfTablosu();
  HarfTablosu(const HarfTablosu&) = delete;
  HarfTablosu& operator=(const HarfTablosu&) = delete;

  cairo_font_face_t* Tip() const { return tip_; }
  const Harf& Bul(char32_t kod);

  double ustBoy = 0;  // from the upper edge of the line to the letters' foot, of letters one unit high
  double satirBoyu = 0;

 private:
  HarfTablosu(YaziAilesi aile, YaziKalinligi kalinlik);

  Harf Olc(char32_t kod);

  cairo_font_face_t* tip_;
  cairo_scaled_font_t* olcek_;
  std::array<Harf, 0x2600> sik_;  // letters up to the box-drawing ones
  Harf seyrek_;
};

// A text as the letters that print: valid UTF-8 of at least one letter each. `kodlar` and `uzunluklar` (bytes of each)
// run in step.
struct CozulmusMetin {
  std::string utf8;
  std::vector<char32_t> kodlar;
  std::vector<int> uzunluklar;
};

// The same object is filled again on the next call.
const CozulmusMetin& Coz(std::string_view metin);

// Fonts that stand in for missing ones would change every width.
Durum YaziTipleriVar();

}  // namespace belvani
