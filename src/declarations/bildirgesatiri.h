// A row of the monthly declaration: the cells of its grid, as texts.
//
// The user may change the cells, and whatever leaves the declaration (file, paper, spreadsheet) is made from them and
// never from the pay records again. Numbers stand with a point, without grouping and without zeros at the end
// ("1250.5", "30"), dates as "dd.MM.yyyy"; an empty cell is nothing.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/tarih.h"
#include "core/tutar.h"

namespace belvani {

struct BildirgeSatiri {
  std::string sigkol{};          // document type: insurance status, from 1, two digits
  std::string sskno{};           // social-security number
  std::string tcno{};            // national identity number
  std::string adi{};             // first name
  std::string soyadi{};          // family name
  std::string ilksoyadi{};       // family name at birth
  std::string primkazanc{};      // premium base of the employer
  std::string ikramiye{};        // allowances
  std::string gun{};             // premium days
  std::string ui{};              // paid-leave days
  std::string uiucret{};         // base of the paid-leave days
  std::string girtar{};          // hired, when inside the period
  std::string ciktar{};          // left, when inside the period
  std::string eksik{};           // reason code of missing days
  std::string eksikgunsayisi{};  // missing days
  std::string ciksebeb{};        // leaving code
  std::string farkmivar{};       // "1": other days or amounts than last month
  std::string kanun{};           // law of the person
  std::string primdisi{};        // the allowances once more: what the spreadsheet parts from the base
  std::string meslekkod{};       // profession code
  std::string rapcalismadi{};    // "1": did not work during a sick report

  bool operator==(const BildirgeSatiri&) const = default;
};

enum class HucreTuru { Metin, Tutar, Tam, Tarih };

// A column of the grid; the two without a caption are not shown.
struct BildirgeKolonu {
  std::string_view ad;
  std::string_view baslik;
  HucreTuru tur;
  int harf;  // longest text of the cell
  std::string BildirgeSatiri::*hucre;
};

inline constexpr std::array<BildirgeKolonu, 21> BildirgeKolonlari{{
    {"sigkol", "Kodu", HucreTuru::Metin, 2, &BildirgeSatiri::sigkol},
    {"sskno", "SSK Sicil", HucreTuru::Metin, 25, &BildirgeSatiri::sskno},
    {"tcno", "T.C. Kimlik", HucreTuru::Metin, 20, &BildirgeSatiri::tcno},
    {"adi", "ADI", HucreTuru::Metin, 20, &BildirgeSatiri::adi},
    {"soyadi", "SOYADI", HucreTuru::Metin, 20, &BildirgeSatiri::soyadi},
    {"ilksoyadi", "İLK SOYADI", HucreTuru::Metin, 20, &BildirgeSatiri::ilksoyadi},
    {"primkazanc", "Pr.Esas Kaz.", HucreTuru::Tutar, 15, &BildirgeSatiri::primkazanc},
    {"ikramiye", "İkramiye", HucreTuru::Tutar, 15, &BildirgeSatiri::ikramiye},
    {"gun", "Gün", HucreTuru::Tam, 3, &BildirgeSatiri::gun},
    {"ui", "Ü.İz.", HucreTuru::Tam, 3, &BildirgeSatiri::ui},
    {"uiucret", "Ü.İ.Ücreti", HucreTuru::Tutar, 15, &BildirgeSatiri::uiucret},
    {"girtar", "Giriş Tarihi", HucreTuru::Tarih, 10, &BildirgeSatiri::girtar},
    {"ciktar", "Çıkış Tarihi", HucreTuru::Tarih, 10, &BildirgeSatiri::ciktar},
    {"eksik", "E.G.N.", HucreTuru::Tam, 3, &BildirgeSatiri::eksik},
    {"eksikgunsayisi", "E.G.S.", HucreTuru::Tam, 3, &BildirgeSatiri::eksikgunsayisi},
    {"ciksebeb", "İ.Ç.N.", HucreTuru::Tam, 3, &BildirgeSatiri::ciksebeb},
    {"farkmivar", "F", HucreTuru::Tam, 1, &BildirgeSatiri::farkmivar},
    {"kanun", "", HucreTuru::Metin, 5, &BildirgeSatiri::kanun},
    {"primdisi", "", HucreTuru::Tutar, 15, &BildirgeSatiri::primdisi},
    {"meslekkod", "Meslek", HucreTuru::Metin, 9, &BildirgeSatiri::meslekkod},
    {"rapcalismadi", "R.Ç.", HucreTuru::Tam, 1, &BildirgeSatiri::rapcalismadi},
}};

// The number of a cell: a whole number with its thousands commas, or the digits at the front of any other text
// ("15.01.2009" -> 15.01); 0 when there are none or when it leaves the range of amounts.
double HucreSayisi(std::string_view hucre);
Tutar HucreTutari(std::string_view hucre);
// Its whole part, for days and codes; 0 beyond four digits, which none of them has.
int HucreTami(std::string_view hucre);
// Null when it is no day.
Tarih HucreTarihi(std::string_view hucre);

// "1250.5", "3000".
std::string YalinMetin(Tutar tutar);

// A month, a day, a document type in two digits: "07".
std::string IkiHane(int sayi);

// The row with its number cells in the form above, as they may have been typed with grouping ("1,250.50") or, where
// whole numbers belong, with a fraction, which is dropped. A cell that is no number stays as it is.
BildirgeSatiri Duzenli(BildirgeSatiri satir);

// "Işıl Çağlar", for messages.
std::string SatirSahibi(const BildirgeSatiri& satir);

}  // namespace belvani
