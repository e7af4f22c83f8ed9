// The working month of many companies prepared, one after the other: the payroll screen's mass run for an office. Each
// company is opened by itself and left again; the session's own goes through the store that is open, so that screens on
// it see what they see after a mass run of theirs: a record that was changed under them.
//
// Passed over, with the reason: a company in which nobody works in the month; one whose month has payments of the
// personal-expense refund that were typed and would go, which its user is asked about on the payroll screen; one whose
// working month is no longer that which was asked about. A company that fails stops no other one.
#pragma once

#include <string>
#include <vector>

#include "core/session/sirketlistesi.h"
#include "payroll/hazirlik/hazirlik.h"

namespace belvani {

// A company and the month that it works in; without a year where its store could not be read.
struct SirketAyi {
  std::string ad;
  int yil = 0;
  int ay = 0;

  bool operator==(const SirketAyi&) const = default;
};

// Of rows of the list. The session's own company is in the month of the session.
std::vector<SirketAyi> CalismaAylari(const Oturum& oturum, const std::vector<SirketSatiri>& satirlar);

// What the user is asked before: how many companies, in which months, and what the installed law is to these. Law that
// cannot be used is a fault.
Sonuc<std::string> TopluHazirlikSorusu(const Oturum& oturum, const std::vector<SirketAyi>& sirketler);

enum class SirketHali { Yapilamadi, Baslanmadi, Atlandi, Hazirlandi };

struct SirketHazirligi {
  SirketAyi sirket;
  SirketHali hal = SirketHali::Baslanmadi;
  std::string soz;    // the counts, or the reason
  Kusurlar sorunlar;  // of its people, and of its month's law
};

// A row for each, in their order. Stopped by `ilerleme`, what is done is done and the others have not been begun.
std::vector<SirketHazirligi> SirketleriHazirla(Oturum& oturum, const std::vector<SirketAyi>& sirketler,
                                               Ilerleme* ilerleme = nullptr);

// "300 şirket: 297 hazırlandı, 2 atlandı, 1 yapılamadı"
std::string TopluHazirlikOzeti(const std::vector<SirketHazirligi>& sirketler);

}  // namespace belvani
