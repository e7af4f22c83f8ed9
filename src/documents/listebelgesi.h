// The road of a list from the store to a Belge, as far as it is the same for all of them.
#pragma once

#include "documents/belgetanimi.h"
#include "documents/defter.h"

namespace belvani {

// Of whom and when: the period of the selection, the company and the rates of the source.
DefterBaslik BaslikYap(const BelgeKaynagi& kaynak, const DefterSecim& secim);

// What the print dialog of a paper starts with.
YzcAyarlari BaskiAyari(const std::string& baslik, KagitYonu yon);

// A list in the user's font and lines. `unvan`: see RaporBelgesi.
std::unique_ptr<Belge> ListeBelgesi(Rapor rapor, KagitYonu yon, const BelgeYazisi& yazi, const SayfaDuzeni& sayfa,
                                    const std::string& unvan = {});

// The selection in the order that a paper must have.
DefterSecim Sirali(DefterSecim secim, DefterSirasi sira);

}  // namespace belvani
