// Severance and notice as lines of what is paid to a leaver: gross, what the law keeps back, net; as the sheet shows
// them, so that each line adds up.
#pragma once

#include "severance/kidembelgesi.h"

namespace belvani {

struct KidemOdemesi {
  Tutar brut;
  Tutar kesinti;
  Tutar net;
};

struct KidemOdemeleri {
  KidemOdemesi ihbar;
  KidemOdemesi kidem;
};

// Nothing without a wage. Throws TutarTasmasi.
std::optional<KidemOdemeleri> KidemOdemeleriYap(const KidemCizelgesi& cizelge);

}  // namespace belvani
