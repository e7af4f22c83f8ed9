// The pay records of a ledger, with their people, from the store.
#pragma once

#include <functional>
#include <vector>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "documents/defter.h"

namespace belvani {

// One after the other, so that a large company does not stand in memory; otherwise as DefterSatirlariOku.
void DefterSatirlariniGez(Motor& motor, const DefterSecim& secim, const std::function<void(BordroSatiri&)>& al,
                          Ilerleme* ilerleme = nullptr);

// In the order of the ledger. A range that is left as it comes ("" to "ZZZZ") takes everyone, also people whose field
// is empty. Records of people whose card is gone are not in it. Throws MotorHatasi, and
// Vazgecilmis when `ilerleme` stops it.
std::vector<BordroSatiri> DefterSatirlariOku(Motor& motor, const DefterSecim& secim, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
