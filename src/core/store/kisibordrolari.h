// One person's pay records through the years that the store holds.
//
// Pay records have no index by code alone: it would cost every mass run. The indexes begin with the year, so the years
// are walked by their edges, and the person is sought in each: a company of 480,000 records answers in well under a
// millisecond, as one of 100 does.
//
// All of it throws MotorHatasi.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/store/motor.h"
#include "core/tables/brd.h"

namespace belvani {

// From a month to a month, both of them included; as it stands, all months.
struct AyAraligi {
  int ilkYil = 0;
  int ilkAy = 1;
  int sonYil = 9999;
  int sonAy = 12;
};

// The records in the order of their months and numbers. The code ignores case.
std::vector<Brd> KisininBordrolari(Motor& motor, std::string_view kod, const AyAraligi& aylar = {});

// The automatic numbers of the same records, which the indexes give without a look at the records themselves.
std::vector<std::int64_t> KisininBordroNumaralari(Motor& motor, std::string_view kod, const AyAraligi& aylar = {});

}  // namespace belvani
