// How a report lies on paper: the user's choices, and the widths and heads that follow from them. For all paper
// writers, so that text and graphic page have the same columns.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "printing/rapor.h"

namespace belvani {

enum class SatirArasi { CizgiCek, BosSatir, Hicbiri };  // "Satırlar Arasında"
enum class KolonArasi { BosBirak, DikCizgi };           // "Kolonlar Arasında"

struct SayfaDuzeni {
  int satirSayisi = 66;  // lines of a page
  int en = 228;          // letters of a line; 228 is the smallest print
  SatirArasi satirArasi = SatirArasi::Hicbiri;
  KolonArasi kolonArasi = KolonArasi::BosBirak;
};

// The head of a column in one or two lines; a head of one line stands in the lower.
using IkiSatir = std::array<std::string, 2>;

struct KagitBicimi {
  std::vector<int> enler;           // letters of each column; one more stands between columns
  int gruplama = BinlikGruplama;    // of all numbers; 0 where thousands marks had to be given up
  std::vector<IkiSatir> basliklar;  // of each column
  int baslikBoyu = 1;               // 1 or 2 lines of heads
  int en = 0;                       // letters of the whole line
  double satirBoyu = 1;             // lines that a row takes
};

// A number is never cut: its column grows as its cells and sums need. Where the line then passes `duzen.en`, all
// numbers drop their thousands marks; where even that does not do, the line is longer than asked, and `en` tells.
// A text column is as wide as its longest text or its head: at most as declared where the line is full, and a column
// for the pen then has its declared width; what the line has free goes to both until nothing is cut and a name can be
// signed.
KagitBicimi KagitBicimle(const Rapor& rapor, const SayfaDuzeni& duzen);

// A head in lines of at most `en` letters, broken at a blank where it can be. ("Toplam Brüt", 9) -> "Toplam", "Brüt".
IkiSatir BaslikBol(const std::string& baslik, int en);

}  // namespace belvani
