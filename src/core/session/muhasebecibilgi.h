// The accountant who signs the declarations. Kept beside the store, in `bordro.ini` of the company's directory, section
// Muhasebe.
#pragma once

#include <string>

#include "core/session/oturum.h"

namespace belvani {

struct Muhasebeci {
  std::string adsoyad;  // "Adı Soyadı"
  std::string tcno;     // "T.C. No"
  std::string sicil;    // "Sicil"

  bool operator==(const Muhasebeci&) const = default;
};

// What is not recorded is empty.
Muhasebeci MuhasebeciOku(const VeriYolu& sirket);
Muhasebeci MuhasebeciOku(const Oturum& o);

Durum MuhasebeciKaydet(const Oturum& o, const Muhasebeci& m);

}  // namespace belvani
