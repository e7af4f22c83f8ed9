// yzccnt: texts in fields of fixed width, and the primitives of pages that are drawn freely.
//
// Lengths are counted in letters. Numbers go through SayiFormat: "." before decimals, nothing for zero.
//   TutarAlan(1234.5, 10, 2, 3) -> "  1,234.50";  TutarAlan(1234567.89, 10, 2, 3) -> "1234567.89"
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/deger.h"
#include "core/sayi.h"
#include "printing/tuval.h"

namespace belvani {

std::string Yinele(std::string_view harf, int adet);  // "" for a number below one

// Left or right in n letters: filled up, never cut.
std::string Solda(std::string_view metin, int n);
std::string Sagda(std::string_view metin, int n);

// Left in n letters: filled up, or cut at its end.
std::string SagBosluk(std::string_view metin, int n);

// Right in n letters: filled up, or cut at its front.
std::string SolBosluk(std::string_view metin, int n);

// An amount by SayiFormat. One with more than n letters gives its thousands marks up.
std::string TutarFormat(Tutar deger, int n, int ondalik, int gruplama);
// The same right in n letters, cut at its front where it still is too long.
std::string TutarAlan(Tutar deger, int n, int ondalik, int gruplama);

// A field of a record (anything with AlanOku), right in n letters.
template <class Kayit>
std::string AlanSayi(Kayit& kayit, std::string_view alan, int n, int ondalik, int gruplama) {
  return SolBosluk(SayiFormat(MetinDegeri(kayit.AlanOku(alan)), ondalik, gruplama), n);
}

// Where a text begins that stands in the middle of n letters; 0 for one with more.
int OrtaYeri(std::string_view metin, int n);

// The trimmed text in the middle of n letters; not filled up behind.
std::string OrtalaMetin(std::string_view metin, int n);

// Lines of at most n letters, broken at blanks where there are any; at least one.
std::vector<std::string> SatirlaraBol(std::string_view metin, std::size_t n);

// Draws on an open page, in its millimetres. The size of letters stays until another one is given.
class yzccnt {
 public:
  explicit yzccnt(Tuval& tuval, const YaziBicimi& yazi = {}) : tuval_(tuval), yazi_(yazi) {}

  void YzcKutu(double x1, double y1, double x2, double y2, double kalinlik = InceCizgi);
  void YzcCizgi(double x1, double y1, double x2, double y2, double kalinlik = InceCizgi);

  // `punto` 0: as before.
  void YzcYaz(std::string_view metin, double x, double y, double punto, YaziKalinligi kalinlik = YaziKalinligi::Normal);

  // Left: from x on, cut at its end until it is no wider than `en`. Right: ends at x. Middle: x is its middle. The two
  // last know no width.
  void YzcHizali(std::string_view metin, double x, double y, double en, double punto, YaziKalinligi kalinlik,
                 MetinHizasi hiza);

 private:
  Tuval& tuval_;
  YaziBicimi yazi_;
};

}  // namespace belvani
