// The fields that the report designers offer, by the names that report files keep.
//
// A name of a file that the store has no column for (`sicil.tasarruf`, `yrd12`) is known but not offered: a report that
// names it keeps the column and shows it empty.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/motor.h"
#include "core/tables/alan.h"
#include "printing/rapor.h"

namespace belvani {

struct RaporAlani {
  enum class Kaynak {
    Kolon,   // of the store
    Sira,    // number of the row
    AdSoyad  // first name, blank, family name
  };

  std::string_view ad;      // as the list shows it: "sicil.kod", "adsoy"
  std::string dosyadaki;    // as a file keeps it: computed ones begin with "*"
  std::string_view baslik;  // a head to begin with
  std::string sql;          // its column, with the table's short name s, k or b; "" for what is no column
  AlanTanimi kolon;         // of the store: type and letters
  Kaynak kaynak = Kaynak::Kolon;

  bool Sunulur() const { return kaynak != Kaynak::Kolon || !sql.empty(); }
  bool Tutardir() const { return kolon.tip == AlanTipi::Tutar; }
  // How a column of it stands in a report.
  KolonTuru Turu() const;
  // Letters that hold most of its values, at most `enCok`.
  int TercihEni(int enCok) const;
};

// Of card (`s`) and identity (`k`), in the order of the designer's list.
std::span<const RaporAlani> OzlukAlanlari();
// Of pay record (`b`), card and identity; a name of two tables is the pay record's.
std::span<const RaporAlani> BordroAlanlari();

// By the name of the list or of a file; case is ignored. Null when it is in no list.
const RaporAlani* RaporAlaniBul(std::span<const RaporAlani> alanlar, std::string_view ad);

// Column `i` of the row that stands ready, as a cell: a text cut to `en` letters, a rate as an amount, Null for Null.
Hucre AlanHucresi(const Komut& komut, int i, const RaporAlani& alan, int en);

}  // namespace belvani
