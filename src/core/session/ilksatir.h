// Tables that are used through their first record alone (`firma`, `arac`), between cursor and record struct.
#pragma once

#include <optional>

#include "core/session/depo.h"
#include "core/store/satirlar.h"
#include "core/tables/uye.h"

namespace belvani {

// The first record; nothing when there is none. A column that an older store lacks reads as zero or empty.
template <class Kayit>
std::optional<Kayit> IlkSatir(Veritabani& db, Imlec& rs) {
  if (!rs.IlkKayit()) return std::nullopt;
  const auto var = db.Koru(decltype(TabloKolonlari(db.IcMotor(), "")){},
                           [&] { return TabloKolonlari(db.IcMotor(), Kayit::TabloAdi); });
  Kayit kayit;
  Kayit::HerKolon([&](const auto& kolon) {
    if (var.contains(kolon.ad)) UyeyeYaz(kayit.*kolon.uye, rs.AlanOku(kolon.ad));
  });
  return kayit;
}

// Every column of the pending record but `dokunma`, which keeps what it holds.
template <class Kayit>
void AlanlariYaz(Imlec& rs, const Kayit& kayit, std::string_view dokunma = {}) {
  Kayit::HerKolon([&](const auto& kolon) {
    if (kolon.ad != dokunma) rs.AlanYaz(kolon.ad, UyeDegeri(kayit.*kolon.uye));
  });
}

}  // namespace belvani
