// A row of the monthly declaration: the cells of its grid, as values.
//
// The user may change the cells, and whatever leaves the declaration (file, paper, spreadsheet) is made from them and
// never from the pay records again. A number may be missing, a date is Null then; codes of the institution that are
// compared letter by letter stay texts. Text is made of a value for the screen and for the file alone, and read back
// once, where a user types it (HucreYaz).
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "core/sonuc.h"
#include "core/tarih.h"
#include "core/tutar.h"

namespace belvani {

struct BildirgeSatiri {
  int no = 0;  // its identity in its declaration, from 1; 0 in none. What is sorted or deleted does not change it
  std::string kod{};                    // of the person; empty in a row that was typed
  std::optional<int> sigkol{};          // document type: insurance status, from 1
  std::string sskno{};                  // social-security number
  std::string tcno{};                   // national identity number
  std::string adi{};                    // first name
  std::string soyadi{};                 // family name
  std::string ilksoyadi{};              // family name at birth
  std::optional<Tutar> primkazanc{};    // premium base of the employer
  std::optional<Tutar> ikramiye{};      // allowances
  std::optional<int> gun{};             // premium days
  std::optional<int> ui{};              // paid-leave days
  std::optional<Tutar> uiucret{};       // base of the paid-leave days
  Tarih girtar{};                       // hired, when inside the period
  Tarih ciktar{};                       // left, when inside the period
  std::optional<int> eksik{};           // reason code of missing days
  std::optional<int> eksikgunsayisi{};  // missing days
  std::optional<int> ciksebeb{};        // leaving code
  std::optional<int> farkmivar{};       // 1: other days or amounts than last month
  std::string kanun{};                  // law of the person
  std::optional<Tutar> primdisi{};      // the allowances once more: what the spreadsheet parts from the base
  std::string meslekkod{};              // profession code
  std::optional<int> rapcalismadi{};    // 1: did not work during a sick report

  bool operator==(const BildirgeSatiri&) const = default;
};

using BildirgeHucresi = std::variant<std::string BildirgeSatiri::*, std::optional<int> BildirgeSatiri::*,
                                     std::optional<Tutar> BildirgeSatiri::*, Tarih BildirgeSatiri::*>;

// A column of the grid; the two without a caption are not shown.
struct BildirgeKolonu {
  std::string_view ad;
  std::string_view baslik;
  int harf;  // longest text of the cell
  BildirgeHucresi hucre;
  int hane = 0;  // a number with at least so many digits: a code
};

inline constexpr std::array<BildirgeKolonu, 21> BildirgeKolonlari{{
    {"sigkol", "Kodu", 2, &BildirgeSatiri::sigkol, 2},
    {"sskno", "SSK Sicil", 25, &BildirgeSatiri::sskno},
    {"tcno", "T.C. Kimlik", 20, &BildirgeSatiri::tcno},
    {"adi", "ADI", 20, &BildirgeSatiri::adi},
    {"soyadi", "SOYADI", 20, &BildirgeSatiri::soyadi},
    {"ilksoyadi", "İLK SOYADI", 20, &BildirgeSatiri::ilksoyadi},
    {"primkazanc", "Pr.Esas Kaz.", 15, &BildirgeSatiri::primkazanc},
    {"ikramiye", "İkramiye", 15, &BildirgeSatiri::ikramiye},
    {"gun", "Gün", 3, &BildirgeSatiri::gun},
    {"ui", "Ü.İz.", 3, &BildirgeSatiri::ui},
    {"uiucret", "Ü.İ.Ücreti", 15, &BildirgeSatiri::uiucret},
    {"girtar", "Giriş Tarihi", 10, &BildirgeSatiri::girtar},
    {"ciktar", "Çıkış Tarihi", 10, &BildirgeSatiri::ciktar},
    {"eksik", "E.G.N.", 3, &BildirgeSatiri::eksik},
    {"eksikgunsayisi", "E.G.S.", 3, &BildirgeSatiri::eksikgunsayisi},
    {"ciksebeb", "İ.Ç.N.", 3, &BildirgeSatiri::ciksebeb},
    {"farkmivar", "F", 1, &BildirgeSatiri::farkmivar},
    {"kanun", "", 5, &BildirgeSatiri::kanun},
    {"primdisi", "", 15, &BildirgeSatiri::primdisi},
    {"meslekkod", "Meslek", 9, &BildirgeSatiri::meslekkod},
    {"rapcalismadi", "R.Ç.", 1, &BildirgeSatiri::rapcalismadi},
}};

// Where the cells of a column come from, and are mended for good: a field of the person's records; none for what the
// month's payroll gives.
AlanTutamagi KaynakAlani(std::string_view kolon);

// Null when there is no column of this name.
const BildirgeKolonu* BildirgeKolonuBul(std::string_view ad);

// A cell as the grid shows it: "01", "30", "1,250.50", "15.07.2009"; a missing value as nothing.
std::string HucreMetni(const BildirgeSatiri& satir, const BildirgeKolonu& kolon, int paraonda);

// What was typed into a cell. An amount may be grouped, days and codes are whole numbers of up to four digits; what is
// no number or no day is refused, at its cell, and the row stays. A cell that is emptied loses its value, but a zero
// stays one: fields show it as nothing.
Durum HucreYaz(BildirgeSatiri& satir, const BildirgeKolonu& kolon, std::string_view metin);

// "1250.5", "3000": no grouping, no zeros at the end.
std::string YalinMetin(Tutar tutar);

// A month, a day, a document type in two digits: "07".
std::string IkiHane(int sayi);

// "Işıl Çağlar", for messages.
std::string SatirSahibi(const BildirgeSatiri& satir);

}  // namespace belvani
