// The subcontractor through whom the employer takes people on: the first record of `arac`.
#pragma once

#include "core/session/oturum.h"
#include "core/store/cakisma.h"
#include "core/tables/arac.h"

namespace belvani {

// The record, to be edited; an empty one with the code "000" when there is none.
Okunan<Arac> AraciDuzenle(Oturum& o);
inline Arac AraciOku(Oturum& o) {
  return AraciDuzenle(o).simdi;
}
Arac AraciOku(Motor& motor);  // of an open store, for papers; throws MotorHatasi

// Fails with "Aracı Bilgileri Kaydedilemedi", or with another user's change.
Yazim<Arac> AraciKaydet(Oturum& o, const Okunan<Arac>& araci);

}  // namespace belvani
