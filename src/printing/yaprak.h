// YaprakBelgesi: a document of slips, one for each person: labelled values in two blocks side by side, sentences below.
//
//                     ÜCRET PUSULASI
//                   Ocak 2008 Dönemi
//   Firma İsmi    : Çınar Tekstil
//   İşe Giriş Tarihi   : 15.03.2004   Ssk Matrahı        :   608.40
//   Ücreti             :     608.40   Ssk Kesintisi      :    85.18
//   Ücret hesap pusulasını, …
//
// Like a report it holds values, and writers render them. Unlike in a list, a zero is shown.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "printing/kagit.h"
#include "printing/metinalici.h"
#include "printing/rapor.h"

namespace belvani {

struct Yaprak {
  std::string altBaslik;  // below the title
  std::vector<BlokSatiri> bas;
  std::vector<BlokSatiri> sol;
  std::vector<BlokSatiri> sag;
  std::vector<BlokSatiri> ek;         // only where there is room: graphic page and spreadsheet
  std::vector<std::string> cumleler;  // read and signed by the person
};

// The slips of a document. Each is made when it is asked for: kept together, those of a large company would take a
// hundred times the memory of their paper.
class YaprakDizisi {
 public:
  YaprakDizisi(std::vector<Yaprak> yapraklar = {})  // NOLINT: slips that are made already
      : YaprakDizisi(yapraklar.size(), [yapraklar](std::size_t sira) { return yapraklar[sira]; }) {}
  // `yap` gives the same slip every time, and does not fail.
  YaprakDizisi(std::size_t adet, std::function<Yaprak(std::size_t sira)> yap) : adet_(adet), yap_(std::move(yap)) {}

  std::size_t size() const { return adet_; }
  bool empty() const { return adet_ == 0; }
  Yaprak operator[](std::size_t sira) const { return yap_(sira); }

  struct Imlec {
    const YaprakDizisi* dizi;
    std::size_t sira;

    Yaprak operator*() const { return (*dizi)[sira]; }
    Imlec& operator++() {
      ++sira;
      return *this;
    }
    bool operator==(const Imlec&) const = default;
  };
  Imlec begin() const { return {this, 0}; }
  Imlec end() const { return {this, adet_}; }

 private:
  std::size_t adet_;
  std::function<Yaprak(std::size_t)> yap_;
};

struct YaprakBelgesi {
  std::string baslik;
  int paraOndaligi = 2;
  YaprakDizisi yapraklar;
};

// "1,234.50", "0.00", "26", "15.03.2004"; Null is empty.
std::string YaprakMetni(const Hucre& hucre, int paraOndaligi);

// UTF-8 lines for fixed-width printers, as MetinRaporu: as many slips on a page as stay whole on it, at least one; the
// last line of a page is free. `ek` is left out. No slips, no text.
std::string MetinYapraklari(const YaprakBelgesi& belge, const SayfaDuzeni& duzen, Ilerleme* ilerleme = nullptr);
// The same slip by slip.
void MetinYapraklariniVer(const YaprakBelgesi& belge, const SayfaDuzeni& duzen, const MetinAlici& al,
                          Ilerleme* ilerleme = nullptr);

}  // namespace belvani
