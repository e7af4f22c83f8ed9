// The month's voucher from the company's store.
#pragma once

#include <string>
#include <vector>

#include "accounting/fis.h"
#include "core/bildirim.h"
#include "core/store/motor.h"

namespace belvani {

// The groups that have posting lines, in their order. Throws MotorHatasi, as all of these do.
std::vector<std::string> EntegreGruplari(Motor& motor);

// "Tümü" takes everybody; records of people whose card is gone are in no voucher. Throws TutarTasmasi too, and
// Vazgecilmis when `ilerleme` stops it.
Fis FisOku(Motor& motor, const FisDonemi& donem, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
