// The report on pages: the same columns, rows, sums and page breaks as the text printer's, in proportional letters.
//
// Letters are as large as the table lets them be: `punto` where there is room, smaller where not. A column is as wide
// as its longest cell; a text much longer than its column was declared for is printed narrower in its own cell, and
// nothing is ever cut.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "printing/cizilenbelge.h"
#include "printing/kagit.h"
#include "printing/sayfalayici.h"

namespace belvani {

// Below this, narrowed as far as letters may be, people cannot read it.
constexpr double EnKucukPunto = 5;
constexpr double EnDarYazi = 0.8;

// Something drawn below the last line of a report, a chart for instance, as wide as the sheet.
struct EkCizim {
  double boy = 0;  // millimetres
  std::function<void(Tuval&, const Dikdortgen&)> ciz;
};

struct GrafikDuzeni {
  std::optional<KagitYonu> yon;  // nothing: upright while the letters stay readable with ease, else sideways
  double punto = 8;              // the largest
  YaziAilesi aile = YaziAilesi::Duz;
  SatirArasi satirArasi = SatirArasi::Hicbiri;
  KolonArasi kolonArasi = KolonArasi::BosBirak;
  std::optional<EkCizim> ek = {};
};

struct KolonYeri {
  double x = 0;  // millimetres from the left edge of the table
  double en = 0;
};

struct GrafikBicimi {
  KagitYonu yon = KagitYonu::Dikey;
  YaziBicimi yazi;       // of the rows
  double satirBoyu = 0;  // millimetres
  int satirSayisi = 0;   // lines of a page
  double en = 0;         // of the table and of the lines above it, millimetres
  std::vector<KolonYeri> kolonlar;
  KagitBicimi kagit;   // heads, and the grouping of numbers
  bool okunur = true;  // false: the letters had to be smaller than the limit
};

GrafikBicimi GrafikBicimle(const Rapor& rapor, const GrafikDuzeni& duzen, Ilerleme* ilerleme = nullptr);

// The pages of a report, which must outlive it.
class GrafikRapor final : public CizilenBelge {
 public:
  GrafikRapor(const Rapor& rapor, GrafikDuzeni duzen, Ilerleme* ilerleme = nullptr);

  int SayfaSayisi() const override;
  void SayfaCiz(int no, Tuval& tuval) const override;
  // Of a report too wide for the sheet, which is then printed too small.
  std::string Uyari() const override;
  const GrafikBicimi& Bicim() const { return bicim_; }

 private:
  bool EkKendiSayfasinda() const;

  const Rapor& rapor_;
  GrafikDuzeni duzen_;
  GrafikBicimi bicim_;
  std::vector<Sayfa> sayfalar_;
};

}  // namespace belvani
