// A report over cards and identities that its user designed: columns with heads and widths, and bounds on their values.
//
// The file (.orp) is 4150 bytes, 50 records of 83, one a column, all of them always there:
//
//   0  field, 20 letters   20  head, 20 letters   40  width, byte, 1 to 40
//   41 lower bound, 20     61  upper bound, 20    81  16 bits of the column's box, kept as they are
//
// Texts are of code page 1254, padded with blanks; a record without a head is no column.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "core/store/motor.h"
#include "documents/defter.h"
#include "printing/rapor.h"

namespace belvani {

struct OzlukKolonu {
  std::string alan;    // as in the file: "sicil.kod"
  std::string baslik;  // "Kolon Adı"
  std::uint8_t en = 0;
  std::string baslangic = {};  // "": no bound
  std::string bitis = {};
  std::int16_t isaret = 0;

  bool operator==(const OzlukKolonu&) const = default;
};
using OzlukKolonlari = std::vector<OzlukKolonu>;

constexpr std::size_t EnCokOzlukKolonu = 50;
constexpr int EnGenisOzlukKolonu = 40;
constexpr int RaporMetniHarfi = 20;  // of the texts in report files
// Does a text come out of a report file as it went in?
bool RaporMetniSigar(const std::string& metin);
constexpr const char* BozukRapor = "Bu Bir Rapor Dosyası Değil veya Bozuk";

// What is wrong with a column that its user gives, at its field.
std::optional<Kusur> KolonKusuru(const OzlukKolonu& kolon);

// All columns are sound (KolonKusuru), and no more than the file holds.
std::string OzlukRaporuBaytlari(const OzlukKolonlari& kolonlar);
// Of the right length, with columns that could have been made here; else BozukRapor.
Sonuc<OzlukKolonlari> OzlukRaporuCoz(std::string_view baytlar);

// Whom a report takes; as it stands, everyone.
struct KisiAraligi {
  MetinAraligi kod{.bas = {}, .bit = "zzzz"};
  MetinAraligi grup = {}, tip = {}, ozel = {};
};

struct RaporBicimi {
  std::string baslik = {};
  std::string aciklama = {};                                         // a line below it
  std::size_t enCokSatir = std::numeric_limits<std::size_t>::max();  // the first ones, for a look at them
};

// Of those people everyone with a card and an identity who lies within all bounds, by code. A bound is of the column's
// kind: a day dd.MM.yyyy, a number, else a text in the order of the alphabet. Throws MotorHatasi, and Vazgecilmis when
// stopped.
Rapor OzlukRaporu(Motor& motor, const OzlukKolonlari& kolonlar, const KisiAraligi& kisiler, const RaporBicimi& bicim,
                  int paraOndaligi, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
