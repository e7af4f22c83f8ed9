// RaporDolgusu: a report that is filled step by step, by a writer that knows its columns at run time only: a list of
// the screen on its way to paper, the report grid (ui/xgrid.h).
//
//   RaporDolgusu dolgu;
//   dolgu.AddColons("Adı", DolguTuru::Metin);
//   dolgu.AddColons("Tutar", DolguTuru::ToplananSayi, {}, 2);
//   dolgu.NewPage();
//   dolgu.CreateRow(GridSatiri::Normal);
//   dolgu.AddbyName("Tutar", Tutar(1250.5));
//   Rapor rapor = dolgu.Yap();
//
// Pages, rows and columns count from 0; what does not exist reads as Null, and writing it changes nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "printing/rapor.h"

namespace belvani {

enum class GridSatiri { Normal = 0, SayfaBasi = 1 };

// The numbers are those of the lists' declarations.
enum class DolguTuru : std::int16_t { Metin = 0, Sayi = 1, Tarih = 2, ToplananSayi = 3 };

class RaporDolgusu {
 public:
  // Title and heading lines.
  void Basliklar(std::string baslik, const std::vector<std::string>& ustSatirlar = {});
  // The captions stand one above the other, `ikinci` on top; `bicim` are the decimals of a number (0 to 4) or the form
  // of a date (0 "dd MMMM yyyy", 1 "dd.MM.yyyy", 2 "dd.MM.yy", 3 "dd.MM", 4 "dd", 5 "MM"; any other is 1); `en` letters
  // on paper, 0 for what is needed.
  void AddColons(std::string_view baslik, DolguTuru tur, std::string_view ikinci = {}, int bicim = 0, int en = 0);
  void NewPage();                                // a page without rows does not come about
  void CreateRow(GridSatiri tur, int adet = 1);  // `adet` rows, of which the last is the current one
  // A cell of the current row takes what its column can show: a number column amounts, whole numbers and their texts, a
  // date column days and their texts. Anything else leaves it empty.
  void Add(int kolon, const Hucre& deger);
  void AddbyName(std::string_view baslik, const Hucre& deger);
  void data(int sayfa, int satir, int kolon, const Hucre& deger);

  std::vector<bool> YeniSayfalar() const;  // of each row
  // Where the next cell goes; the row of the whole report, -1 before the first.
  int Satir() const { return satir_; }
  int Kolon() const { return kolon_; }
  void Konum(int satir, int kolon);

  // Throws TutarTasmasi when a sum leaves the range of amounts.
  Rapor Yap() const;

 private:
  struct DolguKolonu {
    RaporKolonu tanim;
    bool yettigince = false;  // as wide as its longest text
  };
  void Koy(int satir, int kolon, const Hucre& deger);

  std::vector<DolguKolonu> kolonlar_;
  std::vector<RaporSatiri> satirlar_;
  std::string baslik_;
  std::vector<UstSatir> ustSatirlar_;
  bool yeniSayfa_ = false;  // the next row starts a page
  int satir_ = -1;
  int kolon_ = 0;
};

// The first row of each page, from what says of each row whether it starts one.
std::vector<int> SayfaBaslari(const std::vector<bool>& yeniSayfalar);

// A row of a page as one of all rows; -1 where the page has none such.
int SayfadakiSatir(const std::vector<bool>& yeniSayfalar, int sayfa, int satir);

}  // namespace belvani
