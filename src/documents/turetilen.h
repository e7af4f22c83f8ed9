// What the papers derive from a pay record. None of it is stored, and no paper works it out by itself.
//
// The papers show the stamp duty of the minimum-living allowance (`ogv`) as part of the duty, although the record's
// `dvtutar` does not hold it: the allowance is paid on top of the net wage, and its duty is taken out of it. So the net
// of the papers lies below the net of the payroll screen by that duty.
#pragma once

#include <string>

#include "core/tables/brd.h"
#include "core/tables/sicil.h"
#include "core/yuvarlama.h"

namespace belvani {

// Days of the month that count for premiums: worked, rest days, public holidays, paid leave, sick days, excused leave.
int GunToplami(const Brd& brd);

// `ucret` over those days; 0 without any.
Tutar GunlukBrut(const Brd& brd, Yuvarlayici yuvarla);

// "D.Vergisi": Yuvarla(dvtutar + Yuvarla(ogv × damgaOran / 1000)); damgaOran per thousand.
// dvtutar 4.16, ogv 51.98, 6 per thousand -> 4.16 + 0.31 = 4.47. Without an allowance it is dvtutar.
Tutar AgiDahilDamga(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla);

// What the allowance adds to the net: itself less its duty.
Tutar AgiNeti(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla);

// All that is kept back: employee premiums, income tax, the duty above, union dues, debt.
Tutar Kesintiler(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla);

// "Net Ödenen": what is paid without the allowance, and AgiNeti.
Tutar NetOdenen(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla);

// "Ayşe Yılmaz".
std::string AdSoyad(const Sicil& sicil);

}  // namespace belvani
