// The control report: faults of the personnel records, which it only tells and does not mend.
//
// People come in the order of their codes, the faults of one in a fixed order; someone may have several. An empty
// social-security number gives two: it is no number, and it is missing. Of a person without an identity record only
// that is told.
#pragma once

#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/kusur.h"
#include "core/session/oturum.h"
#include "core/sonuc.h"

namespace belvani {

struct KontrolSatiri {
  std::string kod;
  std::string adsoy;
  std::string sonuc;
  AlanTutamagi alan = {};  // where it is mended; not part of the report

  bool operator==(const KontrolSatiri& o) const { return kod == o.kod && adsoy == o.adsoy && sonuc == o.sonuc; }
};

// Never empty: without any fault its one row says "Hata Bulunamadı".
Sonuc<std::vector<KontrolSatiri>> KontrolRaporu(Oturum& o, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
