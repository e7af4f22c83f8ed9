// The pay records of a ledger, with their people, from the store.
#pragma once

#include <functional>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "documents/defter.h"

namespace belvani {

// In the order of the ledger, one after the other, so that a large company does not stand in memory. A range that is
// left as it comes ("" to "ZZZZ") takes everyone, also people whose field is empty. Records of people whose card is
// gone are not in it. Throws MotorHatasi, and Vazgecilmis when `ilerleme` stops it.
void DefterSatirlariniGez(Motor& motor, const DefterSecim& secim, const std::function<void(BordroSatiri&)>& al,
                          Ilerleme* ilerleme = nullptr);

}  // namespace belvani
