// XlsxSatirlari: the cells of a sheet as a workbook keeps them, packed while they come: however many there are, they
// take the memory of their file alone.
//
//   XlsxSatirlari satirlar;
//   satirlar.Metin({1, 1}, "Işıl", 0);
//   satirlar.Sayi({1, 2}, "1234.5", 3);
//   SikisikParca parca = satirlar.Bitir();
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/sikistirici.h"
#include "printing/xlsxsayfa.h"

namespace belvani {

class XlsxSatirlari {
 public:
  // Cells come row by row, from left to right; `stil` is the number of a look of the workbook, 0 the plain one. A text
  // is UTF-8 without control characters. What does not fit into a sheet is refused, and so is all that follows.
  void Metin(XlsxYeri yer, std::string_view metin, int stil);
  void Sayi(XlsxYeri yer, std::string_view sayi, int stil);

  std::string_view Kusuru() const { return kusur_; }  // why it refuses; "" while it takes cells
  std::size_t Hucreler() const { return hucreler_; }
  std::string Alan() const;  // from the first cell to the last column and row: "A1:D12"

  // The element of the rows, once; the sheet goes on behind it.
  SikisikParca Bitir();

 private:
  bool HucreBasi(XlsxYeri yer, int stil);
  void HucreSonu(std::string_view son);
  const std::string& KolonAdi(int kolon);

  Sikistirici sikistirici_;
  std::string bekleyen_ = "<sheetData>";
  std::vector<std::string> kolonAdlari_;  // letters of each, from 1
  std::string satirNo_;                   // of the open row
  XlsxYeri son_;
  int enSagKolon_ = 0;
  std::size_t hucreler_ = 0;
  std::string_view kusur_;
};

}  // namespace belvani
