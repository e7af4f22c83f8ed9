// Tables that are used through their first record alone: `firma`, `arac`.
#pragma once

#include <optional>

#include "core/store/imlecsatir.h"

namespace belvani {

// The first record; nothing when there is none.
template <class Kayit>
std::optional<Kayit> IlkSatir(Veritabani& db, Imlec& rs) {
  if (!rs.IlkKayit()) return std::nullopt;
  return ImlectenOku<Kayit>(db, rs);
}

}  // namespace belvani
