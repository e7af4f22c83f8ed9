// RaporDolgusu: a report that is filled step by step, for lists whose columns are known at run time only.
//
//   RaporDolgusu dolgu;
//   dolgu.KolonEkle({.baslik = "Tutar", .tur = DolguTuru::ToplananSayi, .bicim = 2});
//   dolgu.SatirAc();
//   dolgu.Koy(0, 0, Tutar(1250.0));
//   Rapor rapor = dolgu.Yap();
//
// Rows, columns and pages count from 0. What does not exist is neither read nor written.
#pragma once

#include "printing/rapor.h"

namespace belvani {

// The numbers are those of the lists' declarations.
enum class DolguTuru : std::int16_t { Metin = 0, Sayi = 1, Tarih = 2, ToplananSayi = 3 };

struct DolguKolonu {
  std::string baslik;
  std::string ikinciBaslik = {};  // stands above the first one; "" for heads of one line
  DolguTuru tur = DolguTuru::Metin;
  // Decimals of a number (0 to 4). Form of a date: 0 "dd MMMM yyyy", 1 "dd.MM.yyyy", 2 "dd.MM.yy", 3 "dd.MM", 4 "dd",
  // 5 "MM"; any other number is 1.
  int bicim = 0;
  int en = 0;  // letters on paper; a column that needs more gets more
};

class RaporDolgusu {
 public:
  std::string baslik;
  std::vector<std::string> ustSatirlar;

  void KolonEkle(DolguKolonu kolon);
  void SayfaAc() { yeniSayfa_ = true; }  // the next row starts a page; a page without rows does not come about
  void SatirAc();

  // A cell takes what its column can show: a number column amounts, whole numbers and their texts, a date column days
  // and their texts. Anything else leaves it empty.
  bool Koy(std::size_t satir, std::size_t kolon, const Hucre& deger);

  const std::vector<DolguKolonu>& Kolonlar() const { return kolonlar_; }
  const std::vector<RaporSatiri>& Satirlar() const { return satirlar_; }
  const std::vector<int>& SayfaBaslari() const { return sayfaBaslari_; }  // first row of each page

  // Throws TutarTasmasi when a sum leaves the range of amounts.
  Rapor Yap() const;

 private:
  RaporKolonu KagitKolonu(std::size_t kolon) const;

  std::vector<DolguKolonu> kolonlar_;
  std::vector<RaporSatiri> satirlar_;
  std::vector<int> sayfaBaslari_;
  bool yeniSayfa_ = false;
};

}  // namespace belvani
