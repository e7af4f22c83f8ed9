// People as the severance calculation needs them: terms of the card, and what was taxed in the year before the month
// in which they leave.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "core/tables/sicil.h"
#include "documents/defter.h"
#include "payroll/hesap/tazminat.h"

namespace belvani {

struct KidemKisisi {
  Sicil sicil;  // code, numbers, name, days, wage, branch and group; nothing else of the card
  std::string tcno;
  KidemMatrahi matrah;
};

// All of these throw MotorHatasi.
std::optional<Sicil> KidemKartiOku(Motor& motor, std::string_view kod);
KidemMatrahi KidemMatrahiOku(Motor& motor, const std::string& kod, Tarih ciktar);

struct KidemKisileri {
  std::vector<KidemKisisi> kisiler;  // in the order of codes
  int kimliksiz = 0;                 // left out: without a record of identity
  int girissiz = 0;                  // left out: without a day of hiring
};

// Everyone in the ranges of the selection who was hired before `baz` and has not left before it; one query for cards
// and sums.
KidemKisileri KidemKisileriOku(Motor& motor, const DefterSecim& secim, Tarih baz, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
