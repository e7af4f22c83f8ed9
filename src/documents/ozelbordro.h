// The custom payroll: a second form of the wage ledger with a fixed set of columns, for firms (builders, for instance)
// that show the gross pay of a day and the lines of meals and transport, which are exempt from premium.
#pragma once

#include <vector>

#include "documents/defter.h"

namespace belvani {

// Meals and transport are the allowance lines 2 and 9, whatever the company calls them. "Brüt Kazanç" is the rest of
// "Toplam Kazanç"; "G.Brüt ücret" is the pay of the month over all its days, 0 without days.
// The records as they are to be printed: in the order DefterSirasi::SskNo.
Rapor OzelBordroRaporu(const std::vector<BordroSatiri>& satirlar, const DefterBaslik& baslik);

// From the store. Throws MotorHatasi and TutarTasmasi.
std::unique_ptr<Belge> OzelBordroBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const SayfaDuzeni& duzen,
                                         const BelgeYazisi& yazi);

}  // namespace belvani
