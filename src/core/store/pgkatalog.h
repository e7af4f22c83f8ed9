// The tables of one schema on a PostgreSQL server, as its catalogue has them: read once for a connection, and again
// after the program has changed them.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/store/pgbaglanti.h"

namespace belvani {

// The number of a row where its table has no column of its own for it.
inline constexpr std::string_view PgSatirNo = "satirno";

struct PgKolonu {
  std::string ad;
  std::string bildirilen;  // the type as the table declares it
  unsigned tip = 0;        // the type's number (PgTip)
};

struct PgTablosu {
  std::string ad;
  std::vector<PgKolonu> kolonlar;  // all, in their places
  std::vector<int> yerler;         // the server's number of each
  std::string kimlik;              // which of them numbers the rows; "": none
  Indeksler indeksler;

  const PgKolonu* Bul(std::string_view kolon) const;
};

class PgKatalog {
 public:
  PgKatalog(PgBaglanti& b, const std::string& sema);

  const PgTablosu* Bul(std::string_view tablo) const;
  // By the server's numbers; null for what is none of ours.
  const PgTablosu* Bul(unsigned tabloNo) const;
  const PgKolonu* Bul(unsigned tabloNo, int yer) const;

 private:
  void Oku(const PgSonuc& kolonlar, const PgSonuc& indeksler);

  std::map<std::string, PgTablosu, std::less<>> tablolar_;
  std::map<unsigned, const PgTablosu*> numaralar_;
};

}  // namespace belvani
