// The report on pages: the same columns, rows, sums and page breaks as the text printer's, in proportional letters.
//
// Letters are as large as the table lets them be: `punto` where there is room, smaller where not. A column is as wide
// as its longest cell; a text much longer than its column was declared for is printed narrower in its own cell, and
// nothing is ever cut.
#pragma once

#include <optional>
#include <string>

#include "printing/kagit.h"
#include "printing/tuval.h"

namespace belvani {

// Below this, narrowed as far as letters may be, people cannot read it.
constexpr double EnKucukPunto = 5;
constexpr double EnDarYazi = 0.8;

struct GrafikDuzeni {
  std::optional<KagitYonu> yon;  // nothing: upright while the letters stay readable with ease, else sideways
  double punto = 8;              // the largest
  YaziAilesi aile = YaziAilesi::Duz;
  SatirArasi satirArasi = SatirArasi::Hicbiri;
  KolonArasi kolonArasi = KolonArasi::BosBirak;
};

struct KolonYeri {
  double x = 0;  // millimetres from the left edge of the table
  double en = 0;
};

struct GrafikBicimi {
  KagitYonu yon = KagitYonu::Dikey;
  Yazi yazi;             // of the rows
  double satirBoyu = 0;  // millimetres
  int satirSayisi = 0;   // lines of a page
  double en = 0;         // of the table and of the lines above it, millimetres
  std::vector<KolonYeri> kolonlar;
  KagitBicimi kagit;   // heads, and the grouping of numbers
  bool okunur = true;  // false: the letters had to be smaller than the limit
};

GrafikBicimi GrafikBicimle(const Rapor& rapor, const GrafikDuzeni& duzen);

struct GrafikSonucu {
  int sayfaSayisi = 0;  // 0 for a report without rows
  GrafikBicimi bicim;
  std::string uyari;  // of a report too wide for the sheet, which is then printed too small; else empty
};

GrafikSonucu GrafikRaporu(const Rapor& rapor, const GrafikDuzeni& duzen, Tuval& tuval);

}  // namespace belvani
