// The posting lines of a group: ten at most, as the screen and the imports keep them in `entpar`.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "accounting/fis.h"
#include "accounting/hesapplani.h"
#include "core/store/tablo.h"

namespace belvani {

inline constexpr std::size_t EntparSatiri = 10;
static_assert(ListeyeUyar(entpar::no, EntparSatiri) && ListeyeUyar(entpar::yer, YerSayisi));

// Key of a line: the group, then the number in three digits: "A" and 3 -> "A003".
std::string EntparAnahtari(const std::string& grup, std::size_t no);

// The groups that people belong to (`sicil.ozel`), in their order. Throws MotorHatasi.
std::vector<std::string> OzelKodlar(Motor& motor);

using EntparSatirlari = std::array<Entpar, EntparSatiri>;

// The group's lines as they are stored; those that are not there are empty and take nothing.
struct EntparGrubu {
  std::string grup;
  std::array<Okunan<Entpar>, EntparSatiri> satirlar;
};
EntparGrubu EntparOku(Motor& motor, const std::string& grup);  // throws MotorHatasi

// The first line whose account the books do not have, or that has none, as told; its `satir` is the line's place
// from 1.
Durum HesaplariDenetle(const EntparSatirlari& satirlar, const HesapPlani& plan);

// One line, whole. A failure that is no other user's change is told by the line's number.
Yazim<Entpar> EntparYaz(Motor& motor, const Okunan<Entpar>& satir);

// Lines that are gone. Throws MotorHatasi.
int EntparSil(Motor& motor, const std::string& grup);

// A start to be changed, which balances: gross earnings and the employer's share as cost; net pay, taxes less the
// allowance, and premiums as debts. Takes sub-accounts where the books have them; without books those of the shipped
// chart.
EntparSatirlari EntparOnerisi(const HesapPlani* plan);

}  // namespace belvani
