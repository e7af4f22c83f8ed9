// The months of the payroll summary side by side, for its chart: the same records as in IcmalHesapla, summed up by
// the store as far as no rate is in it.
#pragma once

#include <array>

#include "core/store/motor.h"
#include "core/tek.h"
#include "core/tutar.h"
#include "core/yuvarlama.h"

namespace belvani {

struct IcmalAyi {
  int yil = 0;
  int ay = 0;
  Tutar brut;
  Tutar net;      // as the ledger has it: with the allowance, less its duty
  Tutar maliyet;  // of the employer: gross and the employer's premiums
  int kisi = 0;   // people with pay in the month
};

// What the net of a month depends on besides its records.
struct IcmalKosulu {
  Tek damgaOran;  // per thousand
  Yuvarlayici yuvarla;
};

// One month; without pay it is zero. Throws MotorHatasi.
IcmalAyi IcmalAyiOku(Motor& motor, int yil, int ay, const IcmalKosulu& kosul);

using IcmalSerisi = std::array<IcmalAyi, 12>;

// The twelve months that end with this one, oldest first, not read yet; and read. Throws MotorHatasi.
IcmalSerisi BosIcmalSerisi(int yil, int ay);
IcmalSerisi IcmalSerisiOku(Motor& motor, int yil, int ay, const IcmalKosulu& kosul);

}  // namespace belvani
