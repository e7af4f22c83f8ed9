// The four-month premium payroll, "DÖRT AYLIK SİGORTA PRİMLERİ BORDROSU": for each person insured for invalidity, old
// age and death (branch 0) the days and earnings of each of the four months of a period.
//
// Law 506, article 79 as it stood until the monthly declaration took its place. Earnings are the employee's premium
// base; in 2004 the employer's base and the top-up to the floor (`katki`), for that year the premium was reckoned so.
// Example: 2009, period 2, records of May (30 days, 1,000.00) and July (26, 900.50): slots 1 and 3, total 56 and
// 1,900.50.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "documents/belgetanimi.h"

namespace belvani {

constexpr int DonemAyi = 4;

inline constexpr std::string_view DonemAdlari[] = {"1. Dönem", "2. Dönem", "3. Dönem"};

struct DortAySecimi {
  int yil = 0;
  int donem = 0;  // 1 to 3

  void AyKoy(int secilenYil, int ay) { *this = {secilenYil, (ay - 1) / DonemAyi + 1}; }
  BelgeZamani Zaman() const { return {yil, SonAy(), std::to_string(yil) + "-" + std::to_string(donem) + ". Dönem"}; }
  int IlkAy() const { return (donem - 1) * DonemAyi + 1; }
  int SonAy() const { return donem * DonemAyi; }
  // Both ends belong to the period.
  bool Icinde(Tarih gun) const { return gun.Yil() == yil && gun.Ay() >= IlkAy() && gun.Ay() <= SonAy(); }
};

std::vector<AlanGrubu> DortAyAlanlari();

// Days and earnings of a month, a page, or more.
struct GunVeKazanc {
  int gun = 0;
  Tutar kazanc = {};

  bool operator==(const GunVeKazanc&) const = default;
  GunVeKazanc& operator+=(const GunVeKazanc& d);
};

// The months of a period, in their order.
struct DonemAylari : std::array<GunVeKazanc, DonemAyi> {
  GunVeKazanc Toplam() const;
  DonemAylari& operator+=(const DonemAylari& d);
};

struct DortAylikSatir {
  std::string sskno;
  std::string adi;
  std::string soyadi;
  Tarih girtar;  // this and the next only where they lie in the period
  Tarih ciktar;
  DonemAylari aylar = {};
};

// By social-security number, the shorter first, then by code. One query. Throws MotorHatasi, TutarTasmasi.
std::vector<DortAylikSatir> DortAyHesapla(Motor& motor, const DortAySecimi& secim, Ilerleme* ilerleme = nullptr);

std::unique_ptr<Belge> DortAylikBelgesi(const BelgeKaynagi& kaynak, const DortAySecimi& secim);

}  // namespace belvani
