// What a severance calculation needs of the company and the law, the same for all who leave.
#pragma once

#include "documents/belgetanimi.h"
#include "payroll/hazirlik/firmaparametreleri.h"
#include "payroll/hesap/tazminat.h"

namespace belvani {

constexpr const char* IsSaatiYazilmamis = "Firma Bilgilerinde İş Saati Yazılmamış";

struct KidemKosullari {
  YasalParametreler yasal;
  FirmaParametreleri gruplar;  // flags of the earning groups
  KidemParametreleri kidem;
  IhbarSureleri ihbar{};
  Tek IsSaati;
  bool IsSaatiYazili = true;  // false: the card has no hour of a working day, and eight are used
  int paraonda = 2;
  std::vector<std::string> uyarilar;  // files that were of another size, and are the built-in ones now

  // Points into these conditions.
  KidemKurallari Kurallar() const;
  // Of the line that both pays are taxed by, in the group of a person; 0 where the company's file names no line.
  std::uint8_t Bayraklar(const Sicil& sicil) const;
};

// Throws MotorHatasi.
KidemKosullari KidemKosullariYukle(const BelgeKaynagi& kaynak);

// What the flags of a person leave untaxed, a sentence each.
std::vector<std::string> AlinmayanVergiler(std::uint8_t bayraklar);

}  // namespace belvani
