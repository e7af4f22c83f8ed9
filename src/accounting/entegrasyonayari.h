// `genel.dat` of the company's directory: where its books are kept, and under which groups the business ledger has its
// wages.
#pragma once

#include <string>

#include "core/session/oturum.h"
#include "core/sonuc.h"

namespace belvani {

// As it is recorded; "" while none is chosen.
std::string MuhasebeSirketi(const Oturum& o);
Durum MuhasebeSirketiYaz(const Oturum& o, const std::string& dizin);

struct IsletmeAyari {
  std::string islfirma;   // "İşletme Şirketi"
  std::string ucretgrup;  // group of the wages
  std::string sskgrup;    // group of the premiums

  bool operator==(const IsletmeAyari&) const = default;
};
IsletmeAyari IsletmeAyariOku(const Oturum& o);
Durum IsletmeAyariYaz(const Oturum& o, const IsletmeAyari& ayar);

// The directory of a sibling store, as it is opened: one that is no whole path is meant from the company's directory.
// Of a company on a server it is none, and refused where it is opened.
std::string KardesDizini(const Oturum& o, const std::string& kayitli);

}  // namespace belvani
