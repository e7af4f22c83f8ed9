// Codes of a card that point at definitions of the company: its earning group (`hesap`, in `kaztan`) and its union
// (`tasno`, in `sendika`). With a group that nobody has defined a person earns nothing, with such a union he pays none.
//
// A code is refused when it is typed; one that stands in the store already passes, and the control report tells it.
#pragma once

#include <optional>

#include "core/kusur.h"
#include "core/session/oturum.h"
#include "core/tables/sicil.h"

namespace belvani {

// Faults of the codes that nobody has defined, at their fields: of all codes, or of those that differ from `ilk`. The
// company's default group counts as defined: it comes into being when the company is opened. Throws MotorHatasi.
Kusurlar TanimsizKodlar(Oturum& o, const Sicil& kart, const std::optional<Sicil>& ilk = {});

// The same of everybody, as remarks with the person's code, in the order of the codes. Throws MotorHatasi.
Kusurlar TanimsizKodluKisiler(Oturum& o);

}  // namespace belvani
