// A person's pay records of a year as they stand, to be entered or corrected without any calculation: for somebody who
// is taken over in the middle of a year, or for an amount that is known otherwise. What is typed is stored.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/silme.h"
#include "core/store/cakisma.h"
#include "core/tables/brd.h"
#include "personnel/aktarim.h"

namespace belvani {

// In the order of month and number.
std::vector<Brd> AylikBilgiler(Oturum& o, std::string_view kod, int yil);

// One month of the person; a new one gets the number 1. Everything else of the record stays as it is given.
Yazim<Brd> AylikBilgiKaydet(Oturum& o, const Okunan<Brd>& satir);

// Asks, and deletes the record.
Sonuc<Silme> AylikBilgiSil(Oturum& o, const Brd& satir, Bildirim& bildirim);

// Where a month breaks its own arithmetic, a sentence each: premiums and taxes that the gross pay does not cover, a
// premium or duty that is not its base times its rate to 0.01, by the rounding of the company. An amount whose rate is
// not entered has nothing to be held against.
//   sskmatrah 1000, sskiscior 14, sskkesinti 150 -> "SSK işçi primi 150.00, matrah x oran 140.00"
std::vector<std::string> AritmetikKusurlari(const Brd& b, int paraonda);

// Fields of `brd`: `kod`, `yil`, `ay` and what the file has of the month. The person must have a card. A month that he
// has already is changed in the columns of the file alone; before that the whole month is kept (geri-al). What breaks
// its own arithmetic is taken, and told.
Sonuc<AktarimSonucu> KartAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip);

}  // namespace belvani
