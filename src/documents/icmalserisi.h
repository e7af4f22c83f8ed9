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
  Tutar net;      // toplam::odenen
  Tutar maliyet;  // of the employer: gross and the employer's premiums
  int kisi = 0;   // people with pay in the month
};

// One month; without pay it is zero. Throws MotorHatasi.
IcmalAyi IcmalAyiOku(Motor& motor, int yil, int ay);

using IcmalSerisi = std::array<IcmalAyi, 12>;

// The twelve months that end with this one, oldest first, not read yet; and read. Throws MotorHatasi.
IcmalSerisi BosIcmalSerisi(int yil, int ay);
IcmalSerisi IcmalSerisiOku(Motor& motor, int yil, int ay);

}  // namespace belvani
