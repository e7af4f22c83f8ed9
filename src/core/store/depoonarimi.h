// Mends in a store what the check names and what can be mended without guessing: indexes that are missing or let a
// record stand twice, pay records without a checksum, and, once a user has chosen, pay records that stand twice or do
// not agree with their checksum.
//
// Of records that stand twice the chosen one stays; the others go into the table `brdayrilan`, with the day, where no
// calculation and no paper looks. Nothing is chosen for the user, not even between two that are alike.
#pragma once

#include <cstdint>
#include <vector>

#include "core/sonuc.h"
#include "core/store/motor.h"
#include "core/tables/brd.h"

namespace belvani {

// Records of one person, month and number, in the order in which they were saved.
using AyniBordrolar = std::vector<Brd>;

// Throws MotorHatasi.
std::vector<AyniBordrolar> CiftBordrolar(Motor& motor);

struct Onarim {
  std::vector<Brd> ayrilan;               // filed
  std::vector<AyniBordrolar> secilmeyen;  // still there more than once
  std::vector<std::int64_t> kabulEdilen;  // did not agree with their checksum and stay as they are
  std::size_t ozetlenen = 0;              // had no checksum
};

// `kalan`: automatic numbers of the records that the user keeps. All of it is one transaction. Refused, with nothing
// done, are a store whose pages are broken, a number that stands for nothing to be chosen, and two numbers of one
// group.
Sonuc<Onarim> DepoyuOnar(Motor& motor, const std::vector<std::int64_t>& kalan);

}  // namespace belvani
