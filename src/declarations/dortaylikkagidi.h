// The four-month premium payroll on paper, drawn and as lines of text: twenty-five people a page, each page with three
// sums for each month (its own, carried in, both together), and a recapitulation with a line for each page.
// Example: 26 people of 30 days in May -> page 1: 750, 0, 750; page 2: 30, 750, 780; recapitulation 750, 30, sum 780.
#pragma once

#include <string>
#include <vector>

#include "core/session/muhasebecibilgi.h"
#include "core/tables/arac.h"
#include "core/tables/firma.h"
#include "declarations/dortaylik.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

inline constexpr const char* DortAylikBasligi = "DÖRT AYLIK SİGORTA PRİMLERİ BORDROSU";
inline constexpr const char* DortAylikIsi = "DÖRT AYLIK SiGORTA PRİMLERİ BORDROSU";  // in the print dialog

struct DortAylikKagidi {
  DortAySecimi secim{};
  Firma firma{};
  Arac arac{};
  Muhasebeci muhasebeci{};
  std::vector<DortAylikSatir> satirlar{};
  int paraonda = 2;
};

constexpr std::size_t DortAylikSayfaKisisi = 25;
constexpr std::size_t IcmalSayfaSatiri = 20;  // pages that one sheet of the recapitulation has lines for

struct DortAylikSayfasi {
  int no = 1;
  std::size_t ilk = 0;  // first row
  std::size_t son = 0;  // behind the last
  DonemAylari sayfa = {};
  DonemAylari devir = {};
  DonemAylari dahil = {};
};

// One page at least. Throws TutarTasmasi.
std::vector<DortAylikSayfasi> DortAylikBol(const std::vector<DortAylikSatir>& satirlar, Ilerleme* ilerleme = nullptr);

int DortAylikSayfaSayisi(const DortAylikKagidi& kagit);  // of people; the recapitulation comes behind them

// The months of the period in capitals: "MAYIS".
std::string DonemAyAdi(const DortAySecimi& secim, std::size_t sira);
// "Toplam 3 sayfadan oluşan …", above the signatures.
std::string DortAylikBeyani(int sayfaSayisi);

// The pages and behind them the recapitulation; of no people the empty form alone. Values are named by their place:
// "satir26.adi" (the twenty-sixth person, wherever he stands), "devir.gun1", "icmal2.kazanc4".
FormSayfalari DortAylikSayfalari(std::shared_ptr<const DortAylikKagidi> kagit, Ilerleme* ilerleme = nullptr);

// The same for a text printer, in lines of 136 letters.
constexpr int DortAylikEni = 136;
std::string DortAyYazdir(const DortAylikKagidi& kagit, Ilerleme* ilerleme = nullptr);

// Asked before a text page is printed.
std::string DortAylikSayfaSozu(const DortAylikKagidi& kagit, int sayfa);

}  // namespace belvani
