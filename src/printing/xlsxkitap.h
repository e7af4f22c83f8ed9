// XlsxKitap: a spreadsheet file (.xlsx) of one sheet that is written row by row, top to bottom, and packed as it is
// written: in memory stands what its file will be. The bytes are the same under every locale of the process.
//
//   XlsxKitap kitap("Ücret Bordrosu");
//   const auto tutar = kitap.StilEkle({.sayiBicimi = XlsxTutarBicimi(2)});
//   kitap.Yaz(0, 3, Tutar(1234.5), tutar);
//   Sonuc<std::string> baytlar = kitap.Bitir();
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "printing/rapor.h"
#include "printing/tuval.h"

namespace belvani {

struct XlsxStili {
  std::string sayiBicimi = {};  // in the file's own notation; empty: general
  bool koyu = false;
  bool baslik = false;  // of a column: lined, on grey, wrapped

  bool operator==(const XlsxStili&) const = default;
};

// Whole numbers and amounts as paper shows them: grouped, zero empty. XlsxTutarBicimi(2) -> "#,##0.00;-#,##0.00;".
std::string XlsxTutarBicimi(int ondalik);
// The same with zero shown.
std::string XlsxSifirliBicim(int ondalik);
constexpr const char* XlsxTarihBicimi = "dd.mm.yyyy";
constexpr const char* XlsxKisaTarihBicimi = "dd.mm.yy";
constexpr const char* XlsxUzunTarihBicimi = "[$-41F]dd mmmm yyyy";  // names of months in Turkish everywhere

class XlsxKitap {
 public:
  using Stil = int;

  explicit XlsxKitap(std::string_view sayfaAdi);
  ~XlsxKitap();
  XlsxKitap(const XlsxKitap&) = delete;
  XlsxKitap& operator=(const XlsxKitap&) = delete;

  Stil StilEkle(const XlsxStili& stil);

  void KolonEni(int kolon, double harf);
  void UstuDondur(int satir);  // rows above it stay in sight

  // On A4, as wide as a page, with the page's number at its foot; `yon` Yatay is landscape.
  void A4Yazdir(KagitYonu yon);
  // On paper a page begins with this row, and with each next one that is told; a sheet takes 1023 of them.
  void SayfaBasi(int satir);

  // Rows and columns count from 0; cells come row by row, from left to right. Null writes nothing. A day before March
  // 1900, which a spreadsheet cannot count, is written as text.
  void Yaz(int satir, int kolon, const Hucre& hucre, Stil stil);

  // The file, once; stopped it throws Vazgecilmis. Fails when a row or a text is beyond what a sheet holds, or the
  // system's temporary directory is full or missing; there is never half a file.
  Sonuc<std::string> Bitir(Ilerleme* ilerleme = nullptr);

 private:
  struct Ic;
  std::unique_ptr<Ic> ic_;
};

// Landscape where an upright page would have to shrink columns of these widths much.
KagitYonu XlsxYonu(double toplamEn);

// The width of a column whose longest cell has so many letters.
int XlsxKolonEni(int harf);

// How a cell of a column looks in a spreadsheet.
XlsxStili KolonStili(const RaporKolonu& kolon);

}  // namespace belvani
