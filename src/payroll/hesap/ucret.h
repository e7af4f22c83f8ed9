// The month's wage of a person before any day is counted.
//
// Terms: `ucretags` 1 daily (× 30), 2 hourly (× 30 × daily hours), else monthly; `ucrettipi` 1 net (turned into gross),
// 2 minimum wage, else gross. An apprentice (branch 7) gets at least a third of the minimum wage: law 3308, article 25.
// Example: 4.00 an hour, 7.5 hours a day -> 900.00.
#pragma once

#include "payroll/hesap/bordro.h"

namespace belvani {

enum class UcretTipi : std::uint8_t { Brut = 0, Net = 1, Asgari = 2 };
enum class UcretAgs : std::uint8_t { Aylik = 0, Gunluk = 1, Saatlik = 2 };

// Branch 7, "Çırak/Stajyer/Öğrenci": position 6 in the list.
constexpr int CirakDurumu = 6;

inline bool CirakMi(const Sicil& s) {
  return s.sskdurum == CirakDurumu;
}

// Paid on the board-fee payroll: no social security.
inline bool HuzurHakkiMi(const Sicil& s) {
  return s.tur != 0;
}

// Money-rounded monthly gross wage.
Tutar AylikBrutUcret(const BordroGirdi& g, Yuvarlayici yuvarla);

}  // namespace belvani
