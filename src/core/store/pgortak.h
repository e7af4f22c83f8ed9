// The connection through which a program reads and writes the files of a data path on a server, one for each address,
// beside those of the stores that are open.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include "core/store/pgbaglanti.h"
#include "core/veriyolu.h"

namespace belvani {

struct PgOrtak {
  explicit PgOrtak(const std::string& baglanti);

  // Files of the data path as they were read: what every calculation looks at, the law's figures above all. The server
  // tells when one of them has changed, without being asked; null: not known.
  const DosyaHali* Bilinen(const std::string& ad);
  void Bilindi(const std::string& ad, const DosyaHali& hal) { dosyalar_[ad] = hal; }
  void DosyalariUnut() { dosyalar_.clear(); }

  PgBaglanti b;
  std::map<std::string, std::int64_t, std::less<>> sirketler;  // the numbers of names that were asked for
  std::set<std::pair<std::int32_t, std::int64_t>>
      kilitler;  // that this program holds: the server would give them twice

 private:
  std::map<std::string, DosyaHali> dosyalar_;
};

// The same for all who ask, until it breaks; a program that has forked makes its own. Throws MotorHatasi.
std::shared_ptr<PgOrtak> PgOrtakAl(const std::string& baglanti);

// What is done as the owner of all schemas, whole or not at all.
template <class Is>
void PgSahipOlarak(PgBaglanti& b, Is&& is) {
  try {
    b.Sirala("begin");
    b.Sirala("set local role belvani_sahip");
    is();
    b.Sirala("commit");
    b.Bitir();
  } catch (const MotorHatasi&) {
    b.SirayiBirak();
    if (!b.KoptuMu()) b.Yurut("rollback");
    throw;
  }
}

}  // namespace belvani
