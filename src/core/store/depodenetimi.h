// What is wrong with a company's store itself, whatever its records mean: the engine's own check, tables, columns and
// indexes that are missing or let a record stand twice, values that are not of their column's type (a text where a
// number belongs, a day that is none, a number that the type cannot hold), records that stand twice where only one may,
// pay records that do not agree with their checksum.
#pragma once

#include "core/bildirim.h"
#include "core/kusur.h"
#include "core/store/motor.h"

namespace belvani {

// A fault for each kind and column, at the column, with the number of records and the first person where the table
// has one; what an earlier version has left undone is a remark. Reads everything, and can be given up (Vazgecilmis).
// Throws MotorHatasi.
Kusurlar DepoKusurlari(Motor& motor, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
