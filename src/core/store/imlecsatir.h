// Records as structs through a cursor: the one it stands on, and the one that is pending.
#pragma once

#include <set>
#include <string>

#include "core/store/imlec.h"
#include "core/store/satirlar.h"
#include "core/tables/uye.h"

namespace belvani {

using AlanAdlari = std::set<std::string, std::less<>>;

// The current record. Columns that an older store lacks read as zero or empty.
template <class Kayit>
Kayit ImlectenOku(Veritabani& db, Imlec& rs) {
  const auto var = db.Koru(AlanAdlari(), [&] { return TabloKolonlari(db.IcMotor(), Kayit::TabloAdi); });
  Kayit kayit;
  Kayit::HerKolon([&](const auto& kolon) {
    if (var.contains(kolon.ad)) UyeyeYaz(kayit.*kolon.uye, rs.AlanOku(kolon.ad));
  });
  return kayit;
}

// Into the pending record; the automatic number and the columns of `dokunma` keep what they hold.
template <class Kayit>
void AlanlariYaz(Imlec& rs, const Kayit& kayit, const AlanAdlari& dokunma = {}) {
  Kayit::HerKolon([&](const auto& kolon) {
    if (kolon.nitelik != AlanNiteligi::Otomatik && !dokunma.contains(kolon.ad))
      rs.AlanYaz(kolon.ad, UyeDegeri(kayit.*kolon.uye));
  });
}

}  // namespace belvani
