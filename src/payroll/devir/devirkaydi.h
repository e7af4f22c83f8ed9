// Rows of `dvr`, the sums of a person's closed years: as a person's screen shows and changes them, and out of a file.
// The payroll reads none of them; the personal-expense refunds do.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/silme.h"
#include "core/store/cakisma.h"
#include "core/tables/dvr.h"
#include "personnel/aktarim.h"

namespace belvani {

// The key: the year in four digits and the code, "2008" and "0012" -> "20080012".
std::string YilKod(int yil, std::string_view kod);

// In the order of the years.
std::vector<Dvr> DevirBilgileri(Oturum& o, std::string_view kod);

// The row of a person and year. A row whose year is typed over becomes that of the other year, and the one that was
// read stays; if that year has a row already, it is another's change (core/store/cakisma.h).
Yazim<Dvr> DevirKaydet(Oturum& o, const Okunan<Dvr>& satir);

// Asks, and deletes the row.
Sonuc<Silme> DevirSil(Oturum& o, const Dvr& satir, Bildirim& bildirim);

// Fields of `dvr` but its key, which follows from `kod` and `yil`. The person must have a card. A year that he has
// already is changed in the columns of the file alone.
Sonuc<AktarimSonucu> DevirAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip);

}  // namespace belvani
