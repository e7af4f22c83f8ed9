// The business ledger of a small employer: a month's wages and premiums as two expense lines.
#pragma once

#include <string>

#include "accounting/kardestablolar.h"
#include "core/sonuc.h"
#include "core/store/motor.h"
#include "core/tarih.h"
#include "core/tutar.h"

namespace belvani {

struct IsletmeKaydi {
  Tarih tarih;
  std::string ack;  // "Aralık 2009 Ücret Tahakkuku"
  Tutar brut;       // "Brüt Ücret"
  std::string ucretgrup;
  Tutar prim;  // "SSK Primi+İşsizlik"
  std::string sskgrup;

  bool operator==(const IsletmeKaydi&) const = default;
};

// The month's sums: gross earnings; the employer's premiums. Text and day as they are proposed: `bugun` is the day.
// Throws MotorHatasi, TutarTasmasi.
IsletmeKaydi IsletmeKaydiYap(Motor& motor, int yil, int ay, Tarih bugun);

// Lines with this text that the ledger holds. Throws MotorHatasi.
int AyniHareketler(Motor& isletme, const std::string& ack);
// Asked before a month is posted that the ledger holds already; "": it does not.
std::string AyniHareketSorusu(int hareket, const std::string& ack);

// What keeps it from being posted whatever the ledger is; asked again by the posting itself.
Durum IsletmeDenetle(const IsletmeKaydi& kayit);

// Each line stands for itself: where the premiums cannot be written, the wages stay, and the fault says so. A line
// without an amount is none. What was written goes out of `kayit`, so that it can be tried again with what is left.
// Groups are sought without regard to case.
Durum IsletmeyeIsle(Motor& isletme, IsletmeKaydi& kayit);

}  // namespace belvani
