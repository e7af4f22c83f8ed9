// The months of the payroll summary side by side, for its chart: the same records and sums as IcmalHesapla, summed up
// by the store.
#pragma once

#include <array>

#include "core/store/motor.h"
#include "core/tutar.h"

namespace belvani {

struct IcmalAyi {
  int yil = 0;
  int ay = 0;
  Tutar brut;
  Tutar net;      // Icmal::PersonelOdemeleri
  Tutar maliyet;  // of the employer: gross and the employer's premiums
  int kisi = 0;   // people with pay in the month
};

// The twelve months that end with this one, oldest first; a month without pay is zero. Throws MotorHatasi.
std::array<IcmalAyi, 12> IcmalSerisiOku(Motor& motor, int yil, int ay);

}  // namespace belvani
