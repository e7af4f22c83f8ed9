// Rapor: what a list says, before anything is known of paper, screen or spreadsheet.
//
// Columns, rows of typed cells, the texts around them. A report is filled once; the writers (text, CSV, …) only render
// it. All adding up happens here, in Ekle: running sums after each row, of which the last are the totals, so a page
// foot, a total line and a spreadsheet can never disagree.
//
// A list declares its columns with Kolonlar (kolonlar.h) and does not fill a Rapor by hand.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "printing/raporsatirlari.h"

namespace belvani {

// The value as a text of no column: "Işıl", "26", "1234.5", "15.03.2004"; "" for Null.
std::string DuzMetin(const Hucre& hucre);

enum class KolonTuru {
  Metin,
  Tam,        // whole number
  Tutar,      // amount, shown with `ondalik` decimals
  Tarih,      // dd.MM.yyyy
  KisaTarih,  // dd.MM.yy
  UzunTarih,  // dd MMMM yyyy
  GunAy,      // dd.MM
  Gun,        // dd
  Ay,         // MM
  Bos,        // nothing: room for the pen, a signature for instance
};

constexpr bool TarihMi(KolonTuru tur) {
  return tur >= KolonTuru::Tarih && tur <= KolonTuru::Ay;
}

// A day in the form of such a column, "" for Null: UzunTarih -> "05 Mart 2005".
std::string TarihMetni(Tarih tarih, KolonTuru tur);

// The most letters that one takes; 0 for the other kinds.
int TarihHarfi(KolonTuru tur);

struct RaporKolonu {
  std::string baslik;      // on paper
  std::string kisaBaslik;  // on the screen and in a spreadsheet, where heads have one line
  int en = 0;              // letters on paper: the most that a text gets, the least that a number gets
  KolonTuru tur = KolonTuru::Metin;
  int ondalik = 0;
  bool toplanir = false;
  std::string ad = {};  // by which other programs and lists know it; "": by its short head

  const std::string& Adi() const { return ad.empty() ? kisaBaslik : ad; }
  bool Sayisal() const { return tur == KolonTuru::Tam || tur == KolonTuru::Tutar; }
};

// A line above the column heads of each page; any part may be empty.
struct UstSatir {
  std::string sol = {};
  std::string orta = {};
  std::string sag = {};
  bool sayfaNo = false;      // the page number follows `sag`
  bool sayfaSayisi = false;  // "/" and the number of pages follow that
  bool sirket = false;       // `sol` names the company
};

// The right end of an upper line on a page: "Shf : 2/5".
std::string UstSagMetni(const UstSatir& satir, int sayfaNo, std::size_t sayfaSayisi);

// The line where there are no pages, on the screen and in a spreadsheet: its parts without the page number.
std::string UstEkranMetni(const UstSatir& satir);

// A labelled value below the totals.
struct BlokSatiri {
  std::string etiket;
  Hucre deger;
};

class Rapor {
 public:
  explicit Rapor(std::vector<RaporKolonu> kolonlar);

  std::string baslik;        // on paper
  std::string ekranBasligi;  // on the screen and in a spreadsheet
  // In the first text column of the sums that is declared wide enough for it; "" where sums have no label.
  std::string toplamEtiketi;
  // The same of the sums of a page's own rows, which a paper of several pages has with such a label: at the foot of
  // each page, and on the last one above the sums of all. Without it each page shows the sums so far.
  std::string sayfaToplamEtiketi;
  std::vector<UstSatir> ustSatirlar;
  std::vector<BlokSatiri> sonBlok;
  int paraOndaligi = 2;  // of the amounts in `sonBlok`

  // Texts lose their control characters. Throws TutarTasmasi when a sum leaves the range of amounts.
  void Ekle(RaporSatiri satir);

  const std::vector<RaporKolonu>& Kolonlar() const { return kolonlar_; }
  const RaporSatirlari& Satirlar() const { return *satirlar_; }

  // Sums of the first `satirSayisi` rows, with their label; Null in the other columns that are not summed.
  std::vector<Hucre> AraToplam(std::size_t satirSayisi) const;
  std::vector<Hucre> Toplam() const { return AraToplam(satirlar_->size()); }
  // Of the rows from `ilk` on to the one before `son`, as a page has them.
  std::vector<Hucre> SayfaToplami(std::size_t ilk, std::size_t son) const;
  bool ToplamVar() const;
  std::optional<std::size_t> EtiketKolonu() const;  // in which the labels of the sums stand

  // The most letters that a column needs for its cells, its sums and their label, numbers in groups of `gruplama`
  // digits.
  int GerekliEn(std::size_t kolon, int gruplama) const;

  // The same with its rows in another order: `sira` names each of them once. Where pages start stays.
  Rapor Sirali(std::span<const int> sira) const;

 private:
  std::vector<std::int64_t> Birikim(std::size_t satirSayisi) const;
  std::vector<Hucre> Toplamlar(std::size_t ilk, std::size_t son, const std::string& etiket) const;
  int EtiketHarfi() const;

  // The widest of a column: of texts by letters, of numbers one of the two ends.
  struct Sinir {
    std::size_t harf = 0;
    std::int64_t enKucuk = 0;
    std::int64_t enBuyuk = 0;
  };

  std::vector<RaporKolonu> kolonlar_;
  std::shared_ptr<RaporSatirlari> satirlar_;  // of copies too, until one of them gets a row
  std::vector<std::int64_t> toplam_;          // of each column, scaled like the cells; 0 of those that are not summed
  std::vector<std::int64_t> birikim_;         // the same before each block of rows
  std::vector<Sinir> sinirlar_;
};

// Thousands are marked in printed numbers.
constexpr int BinlikGruplama = 3;

// A cell as paper and screen show it. Zero is empty, in totals too: forms leave lines without a value blank.
// Tutar 1234.5 in a column of two decimals -> "1,234.50".
std::string HucreMetni(const Hucre& hucre, const RaporKolonu& kolon, int gruplama = BinlikGruplama);

// The same for a line of the end block.
std::string BlokMetni(const BlokSatiri& satir, const Rapor& rapor);

}  // namespace belvani
