// A paper of the registry made from its choices, and what its user must know of the law behind it: the one way of the
// screen and of the command.
#pragma once

#include "documents/belgetanimi.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani {

// Named by what it is of. Throws as BelgeSecimi::BelgeYap.
std::unique_ptr<Belge> BelgeYap(const BelgeTanimi& tanim, BelgeSecimi& secim, const BelgeKaynagi& kaynak);

// What a paper of these choices is of: "2009-07", "2009" of a whole year, a day; "" of no time.
std::string BelgeDonemi(const BelgeTanimi& tanim, BelgeSecimi& secim);

// What the installed law is to a month.
using MevzuataBakan = std::function<MevzuatGorusu(MevzuatAyi)>;

// Told beside the paper and never on it: a figure of it comes from the installed law, and that is another month's or
// cannot be used. "" where there is nothing to tell. Throws MotorHatasi.
std::string BelgeMevzuatSozu(const BelgeTanimi& tanim, BelgeSecimi& secim, Motor& motor, const MevzuataBakan& bak);

}  // namespace belvani
