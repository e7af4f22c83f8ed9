// The yearly carry-over: a closed year of pay records summed up into `dvr`, a row for each person.
//
// Income-tax base and tax and the unemployment premium of both sides are the sums of the person's records, rounded as
// the company's money is (`paraonda`); what of them is empty counts as nothing. The personal-expense amounts of a row
// that is there already stay. All of it is one transaction, and may be run again at will: it writes the same sums.
#pragma once

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/sonuc.h"

namespace belvani {

inline constexpr int IlkDevirYili = 2003;

struct YillikDevirSonucu {
  int kisi = 0;             // with records in the year
  Kusurlar yazilamayanlar;  // whose row the store refuses; the others are carried over
};

// Stopped it throws Vazgecilmis, and nothing has changed.
Sonuc<YillikDevirSonucu> YillikDevir(Oturum& o, int yil, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
