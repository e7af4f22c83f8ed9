// A backup comes back: as the company it was made of, over what stands there by now, or under a new code.
//
// It is unpacked aside, held against its digests, and takes its place in one step: a kill at any moment leaves the one
// company or the other, never half of each. What stood there is backed up before it goes.
#pragma once

#include <optional>
#include <string>

#include "core/asama.h"
#include "core/veriyolu.h"

namespace belvani {

struct DonusIstegi {
  std::string dosya;         // of the backup
  std::string yeniKod = {};  // of a company that is not there; empty: the backup's own
};

struct Donus {
  std::string ad;           // of the company's directory
  std::string onceki = {};  // the backup of what stood there; empty when there was nothing
  Kusurlar uyarilar = {};
};

// Asks when a company stands there, and names the dates of both. It must be nobody's meanwhile, its own caller's
// neither: `yurut` may close it. Nothing when the answer was no, or the work was stopped; then nothing has changed.
Sonuc<std::optional<Donus>> YedektenDon(const VeriYolu& veri, const DonusIstegi& istek, Bildirim& bildirim,
                                        const Yurutucu& yurut = HemenYurut);

// The company whose place the backup would take under its own code; "" when none stands there.
Sonuc<std::string> YedeginYeri(const VeriYolu& veri, const std::string& dosya);

}  // namespace belvani
