// "ASGARİ GEÇİM İNDİRİMİ BORDROSU": the year's list of the minimum-living allowance: a row for each person, with the
// allowance (`ogv`) of each month up to the chosen one. Law: income tax act, article 32; from 01.01.2008.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "documents/defter.h"

namespace belvani {

struct AgiKisisi {
  std::string kod;
  std::string adSoyad;
  Tek agioran;      // percent; this and the next as in the last of the person's records
  Tutar agimatrah;  // base of the allowance
  std::array<Tutar, 12> aylar{};
};

struct AgiBaslik {
  std::string unvan;
  int yil = 0;
  Tutar agiTaban;  // monthly gross minimum wage of the allowance
  int paraonda = 2;
};

// All records of the year up to the selection's month, in the order of codes; two runs of a month are added up. People
// without any allowance are in it too. Throws MotorHatasi.
std::vector<AgiKisisi> AgiKisileriOku(Motor& motor, const DefterSecim& secim, Ilerleme* ilerleme = nullptr);

Rapor AgiListesi(const std::vector<AgiKisisi>& kisiler, const AgiBaslik& baslik);

// From the store. Throws MotorHatasi and TutarTasmasi.
std::unique_ptr<Belge> AgiBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim);

// What the paper's screen says when it is asked for in text mode.
constexpr const char* AgiMetinYok = "Bu Bordro Grafik Yazıcıdan Alınmaktadır.";

}  // namespace belvani
