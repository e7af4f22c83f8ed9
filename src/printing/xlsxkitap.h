// XlsxKitap: a spreadsheet file (.xlsx) of one sheet that is written row by row, top to bottom, into memory alone: rows
// are packed as they come, nothing goes to the disk. The bytes are the same under every locale of the process.
//
//   XlsxKitap kitap("Ücret Bordrosu");
//   const auto tutar = kitap.StilEkle({.sayiBicimi = XlsxTutarBicimi(2)});
//   kitap.Yaz(0, 3, Tutar(1234.5), tutar);
//   Sonuc<std::string> baytlar = kitap.Bitir();
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"
#include "printing/rapor.h"
#include "printing/zipyazici.h"

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

  Stil StilEkle(const XlsxStili& stil);

  // The looks of the sheet, before its first cell.
  void KolonEni(int kolon, double harf);
  void UstuDondur(int satir) { donuk_ = satir; }  // rows above it stay in sight, the last of them heads every page
  void YatayYazdir() { yatay_ = true; }           // landscape, as wide as one page

  // Rows and columns count from 0; cells come row by row, from left to right. Null writes nothing. A day before March
  // 1900, which a spreadsheet cannot count, is written as text.
  void Yaz(int satir, int kolon, const Hucre& hucre, Stil stil);

  // The file, once. Fails when a row or a text is beyond what a sheet holds.
  Sonuc<std::string> Bitir();

 private:
  void SayfaBasi();
  void HucreAc(int satir, int kolon, Stil stil);
  void Pakete();
  std::string Stiller() const;
  std::string Kitap() const;

  std::string ad_;
  ZipYazici zip_;
  std::string xml_;                                 // of the sheet, not packed yet
  std::vector<XlsxStili> stiller_ = {XlsxStili{}};  // the plain one first
  std::vector<std::string> kolonAdlari_;            // "A", "B"
  std::string kolonlar_;                            // their widths
  int donuk_ = 0;
  bool yatay_ = false;
  int satir_ = -1;  // the open one
  std::string satirNo_;
  int kolon_ = -1;  // its last cell
  std::optional<Kusur> kusur_;
};

// How a cell of a column looks in a spreadsheet.
XlsxStili KolonStili(const RaporKolonu& kolon);

}  // namespace belvani
