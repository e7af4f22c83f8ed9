// excelkont: a sheet that is filled cell by cell, for papers that are no list: a new workbook, or a form that the user
// has as a workbook.
//
//   excelkont excel({.ac = …});
//   excel.Baslik = "TAZMİNAT HESAPLAMA TABLOSU";
//   excel.OpenExcell();                                    // or OpenExcell(dizin + "aylik.xls")
//   excel.SetExcell(1, 1, excel.Baslik, ExcelYazisi::Koyu);
//   excel.SetExcel("b2", Tutar(1250.5));
//   Durum durum = excel.CloseExcell();
//
// Rows and columns count from 1, as a spreadsheet counts them: SetExcell(40, 213, …) is the cell "he40". Numbers and
// days go in as such, and look as on paper: amounts grouped, zero empty. A form keeps its own looks, so bold letters
// are for new workbooks only; one of the old form (.xls) is first turned into .xlsx by the office program of this
// computer.
//
// The first failure of a cell is kept and comes back from CloseExcell, so a writer of two hundred cells asks once.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "core/bildirim.h"
#include "printing/xlsxsablon.h"

namespace belvani {

// Told when there is no program to open a workbook, or to convert one.
inline constexpr const char* ExcelYok = "Excell Yüklü Değil veya Desteklenmeyen Versiyon";

enum class ExcelYazisi { Normal, Koyu };

// A file name out of a title: no separators, no dot in front.
std::string DosyaAdi(std::string_view baslik);

struct ExcelIslevleri {
  // Hands the finished file to the user's spreadsheet program; false: there is none.
  std::function<bool(const std::string& dosya)> ac = nullptr;
  // Asked when there is none: where the file goes; nothing when its user gave up.
  std::function<std::optional<std::string>()> yolSor = nullptr;
  std::string donusturucu = "soffice";
};

class excelkont {
 public:
  explicit excelkont(ExcelIslevleri islevler = {}) : islevler_(std::move(islevler)) {}

  std::string Baslik;  // names sheet and file of a new workbook
  int ParaOndaligi = 2;

  // A new workbook, or the workbook of the file. What was open and not closed is dropped.
  Durum OpenExcell(const std::string& dosya = {});
  // The same for the bytes of a workbook (.xlsx).
  Durum KitapAc(std::string baytlar);
  // A workbook that is finished, to be handed over as it is.
  void HazirKitap(std::string baytlar);

  bool SetExcell(int satir, int kolon, const Hucre& deger, ExcelYazisi yazi = ExcelYazisi::Normal);
  bool SetExcel(std::string_view adres, const Hucre& deger, ExcelYazisi yazi = ExcelYazisi::Normal);
  // Of a new workbook, in letters; a column without it is as wide as its cells need.
  void KolonEni(int kolon, int harf) { enler_[kolon] = harf; }

  // Forms alone. A further sheet, as the first one is in the file; and the sheet that is filled from now on, "" the
  // first.
  bool SayfaEkle(const std::string& ad) { return sablon_ && KusuruTut(sablon_->SayfaKopyala("", ad)); }
  void SayfaSec(std::string ad) { sayfa_ = std::move(ad); }
  bool AdVar(std::string_view ad) const { return sablon_ && sablon_->AdVar(ad); }

  // The finished workbook, for one that is not handed over here; or the first failure.
  Sonuc<std::string> Kitap(Ilerleme* ilerleme = nullptr);
  // Writes the file into a new directory among the temporary ones and opens it in the user's program; without such a
  // program it goes where the user wants it.
  Durum CloseExcell();
  void ExVisible(bool gorunur) { gorunur_ = gorunur; }  // false: CloseExcell only writes the file

  const std::string& Dosya() const { return dosya_; }  // as it was written; "" before, and when its user gave up

 private:
  struct YeniHucre {
    Hucre deger;
    ExcelYazisi yazi;
  };

  void Birak();
  Sonuc<std::string> KitapOku(const std::string& dosya) const;
  bool KusuruTut(const Durum& durum);
  Sonuc<std::string> YeniKitap(Ilerleme* ilerleme) const;
  Durum KitapYaz(const std::string& yol, const std::string& baytlar);
  bool GeciciYaz(const std::string& baytlar);

  ExcelIslevleri islevler_;
  std::map<std::pair<int, int>, YeniHucre> hucreler_;  // by row and column, from 1
  std::map<int, int> enler_;                           // of columns, as they were asked for
  std::optional<XlsxSablon> sablon_;
  std::optional<std::string> hazir_;
  std::string sablonAdi_;
  std::string sayfa_;  // of the form
  std::optional<Kusur> kusur_;
  std::string dosya_;
  bool acik_ = false;
  bool gorunur_ = true;
};

}  // namespace belvani
