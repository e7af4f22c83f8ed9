// What in a company's store is not as it should be although the store is sound: what earlier faults have left in it,
// and what was calculated under another law than its month's. The control screen lists it, `denetle` prints it; nothing
// of it is mended here.
//
//   the card       a class that a save of an older version may have lost, no default group, no month
//   orphans        records of people who have no card; faults of the people themselves are KontrolRaporu's
//   pay records    amounts that do not follow from their own parts; months whose rates, ceiling or allowance base are
//                  not those published for them
#pragma once

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/sonuc.h"

namespace belvani {

// Remarks at their fields: a column of `firma` is on the company's card, with a person's code it is on his. Figures are
// held against those that are shipped; without them nothing is said of months. A check that was stopped throws
// Vazgecilmis.
Sonuc<Kusurlar> SirketDenetle(Oturum& o, Ilerleme* ilerleme = nullptr);

// What is wrong with the store itself (core/store/depodenetimi.h); its faults come before those of its records.
Sonuc<Kusurlar> DepoDenetle(Oturum& o, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
