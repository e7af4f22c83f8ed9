// The in-place upgrade of a company store that an earlier version has made, one numbered step after the other.
//
// A step closes the cursors, opens the file anew, adds the fields that its version brought, fills them and stamps
// `firma.versiyon`, all in one transaction, and opens the cursors: it happens whole or not at all. Fields that are
// there already are passed over, so a step may be repeated; its filling is then done again, too.
//
//   step  from    to      fields                                           filled with
//   0     older   2003.1  firma: tckimlik epos kanun versiyon semt         "", kanun "00000"; 0
//                         adrilce adril pk; brd: ucretsizizin ogv;
//                         sicil: tahsisno
//   1     2003.1  2003.2  sicil: indirim1..3 indtut1..3; brd: ucrizmatrah  brd: 0; katki: what the employer's base
//   lacks
//                         katki indirim1..3 sakindir gocindir              to the floor of the social-security base
//   2     2003.2  2003.3  firma: tersfirma                                 false
//   3     2003.3  2003.4  brd: sendika borckes muaftutar
//   4     2003.4  2003.5  sicil: kanun
//   5     2003.5  2003.6  sicil: tur                                       from sskdurum, where not 1 to 18
//   6     2003.6  2003.7  sicil: agi; esco: agiok; brd: agioran agimatrah  agi true; sskdurum 4: tur 1, others: tur 0
//                         brdkanun                                         and sskdurum 0
//
// Example of step 1: floor 444.15, sskmatrahisveren 400.00 -> katki 44.15. Steps 0 to 4 stamp the program's version,
// which carries the store to the end of the chain; which steps are open is therefore asked once, before the first.
// The store must be this program's alone: while others are in (icerde.h), nothing is begun.
#pragma once

#include <string>
#include <string_view>

#include "core/gelisme.h"
#include "core/session/oturum.h"
#include "core/session/yukseltmeadimlari.h"
#include "core/tutar.h"

namespace belvani {

enum class GuncellemeSonucu {
  Tamam,
  IsaretYok,      // nothing was ticked, or nothing may be begun: the screen stays
  Basarisiz,      // the chain stops here
  ProgramBitsin,  // the store could not be opened again: the program must end
};

// What the box of a step says: "2003.1' den 2003.2 ' ye Geçiş".
std::string_view AdimBasligi(std::size_t adim);

// Steps whose version the store has not reached. Versions are compared as the texts that the screen shows.
AdimIsaretleri AcikAdimlar(Tek depoVersiyonu);
// The same of the open store, and the steps that it lacks whatever its version says.
AdimIsaretleri AcikAdimlar(Depo& depo);

// The store has the program's version and every field that the steps bring; the fault says what is missing. With such a
// store the user goes on, to read it and to upgrade it.
Durum YapiKontrol(Oturum& o);

// Before the step that writes everybody's kind of insurance anew, where it is ticked: asks, naming how many cards it
// changes. False: its user does not want that.
Sonuc<bool> SigortaTuruOnayi(Oturum& o, const AdimIsaretleri& isaretli, Bildirim& bildirim);

// The company as it is, among its backups; gives the file's address.
Sonuc<std::string> YukseltmeOncesiYedek(Oturum& o);

// One step, 0 to 6, on the session's company. `sskTaban` is the monthly floor of the social-security base as the
// parameters have it now.
Gelisme<GuncellemeSonucu> VeritabaniGuncelle(Oturum& o, std::size_t adim, Tutar sskTaban);

// The ticked steps in ascending order, up to the first that fails, after a copy of the store; without the copy nothing
// is done. Its words end with where the copy is and what the store still lacks. It can be given up (Vazgecilmis) until
// the first step begins: a chain that stopped in its middle would leave a store that claims to be newer than it is.
Gelisme<GuncellemeSonucu> AdimlariYurut(Oturum& o, const AdimIsaretleri& isaretli, Tutar sskTaban,
                                        Ilerleme* ilerleme = nullptr);

}  // namespace belvani
