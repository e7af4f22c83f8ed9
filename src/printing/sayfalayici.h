// The pages of a report: which line stands where. Text and graphic writers draw these lines one by one and count
// nothing themselves.
//
// A page: title, upper lines, rule, column heads, rule, rows, rule, sums, rule. The sums at the foot of each page are
// those of all rows so far; on the last page they are the totals, with the end block below. Rules of the break:
//   1. The line counter starts with the page head and grows with each row and its separator.
//   2. After a row that brings it to the lines of a page less 10, the page ends: ten lines are free for the foot.
//   3. A row marked `yeniSayfa` starts a page; the one before it closes with its foot as usual.
//   4. The last page holds at least one row. An end block that does not fit below the totals gets a page of its own.
// At least one row stands on a page, however few lines it has. Without rows there is one page of heads.
#pragma once

#include <vector>

#include "printing/kagit.h"
#include "printing/rapor.h"

namespace belvani {

constexpr int SayfaDibiSatirlari = 10;  // kept free for the foot

enum class SayfaSatirTuru {
  Baslik,        // title
  UstSatir,      // `sira`: of Rapor::ustSatirlar
  KolonBasligi,  // `sira`: 0 upper, 1 lower line of the heads
  Cizgi,         // rule
  Bos,           // blank line between rows
  Govde,         // `sira`: of Rapor::Satirlar
  SayfaToplami,  // sums of the page's own rows; `sira`: number of rows up to here
  Nakil,         // sums carried so far; `sira`: number of rows in them
  Toplam,        // sums of all rows; `sira` as above
  Blok,          // `sira`: of Rapor::sonBlok
};

// Whether lines of this kind have columns.
bool TabloSatiriMi(SayfaSatirTuru tur);

struct SayfaSatiri {
  SayfaSatirTuru tur;
  std::size_t sira = 0;

  bool operator==(const SayfaSatiri&) const = default;
};

struct Sayfa {
  int no = 1;
  std::vector<SayfaSatiri> satirlar;
  std::size_t ilkKayit = 0;  // the first row of the report on it
};

// Lines that one of a page takes, and all of them.
double SatirBoyu(const SayfaSatiri& satir, const KagitBicimi& bicim);
double SayfaBoyu(const Sayfa& sayfa, const KagitBicimi& bicim);

std::vector<Sayfa> SayfalaraBol(const Rapor& rapor, const KagitBicimi& bicim, const SayfaDuzeni& duzen);

}  // namespace belvani
