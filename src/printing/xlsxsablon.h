// XlsxSablon: a finished workbook (.xlsx) whose cells are filled in, as a statutory form is.
//
//   auto sablon = XlsxSablon::Ac(*DosyaOku("aylik.xlsx"));
//   sablon->Yaz("Bildirge", "B12", Tutar(1234.5));
//   DosyaYaz(yol, *sablon->Bitir());
//
// Only the sheets that are written to change, and in them only the named cells: looks, widths, merged cells, pictures
// and all other parts of the file stay byte for byte. A cell that the sheet does not have yet is added, with the look
// of its row or column. Texts are put into the cell itself, the table of shared texts is left alone. Where the workbook
// has formulas, their order of calculation is dropped and the spreadsheet program calculates anew when it opens the
// file.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/sonuc.h"
#include "printing/rapor.h"

namespace belvani {

class XlsxSablon {
 public:
  // Fails on bytes that are no workbook.
  static Sonuc<XlsxSablon> Ac(std::string baytlar);
  ~XlsxSablon();
  XlsxSablon(XlsxSablon&&) noexcept;
  XlsxSablon& operator=(XlsxSablon&&) noexcept;

  // `sayfa`: the sheet's name, case ignored; "" for the first. `adres`: "B12". A day goes in as a date where the cell
  // has a date format, else as the text "dd.MM.yyyy"; Null empties the cell. Fails on a sheet that is not there, on
  // what is no address, and on a cell whose formula other cells share. A failure changes nothing.
  Durum Yaz(std::string_view sayfa, std::string_view adres, const Hucre& deger);

  // A further sheet behind the last one, as `sayfa` ("" for the first) is in the file, whatever has been written into
  // it since; with its print area and what it refers to. Fails where there is no such sheet, or one of the new name.
  Durum SayfaKopyala(std::string_view sayfa, const std::string& yeniAd);
  // The workbook has a name of its own for some of its cells.
  bool AdVar(std::string_view ad) const;

  // The workbook as it is filled now.
  Sonuc<std::string> Bitir();

 private:
  struct Ic;
  explicit XlsxSablon(std::unique_ptr<Ic> ic);
  std::unique_ptr<Ic> ic_;
};

// Rows and columns count from 0: XlsxAdresi(11, 1) -> "B12".
std::string XlsxAdresi(int satir, int kolon);

}  // namespace belvani
