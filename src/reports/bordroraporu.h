// A report over pay records that its user designed: columns with heads, widths, decimals and sums, for a range of
// months and people; a line for each record or one for each person.
//
// The file (.brp) is records of 48 bytes, the head first and then a record for each column:
//
//   0  field, 20 letters   20  head, 20 letters   40  width, byte   41  decimals, byte
//   42 16 bits, kept as they are   44  16 bits, not 0: summed   46  16 bits, kind: 2 of the head
//
// Texts are of code page 1254, padded with blanks. The head keeps no title.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "core/store/motor.h"
#include "reports/ozlukraporu.h"

namespace belvani {

struct BordroKolonu {
  std::string alan;  // as in the file: "brutkaz", "*adsoy"
  std::string baslik;
  std::uint8_t en = 0;
  std::uint8_t ondalik = 0;
  bool toplanir = false;
  std::int16_t sakli = 0;
  std::int16_t tur = 0;

  bool operator==(const BordroKolonu&) const = default;
};
using BordroKolonlari = std::vector<BordroKolonu>;

constexpr std::size_t EnCokBordroKolonu = 200;
constexpr int EnCokRaporOndaligi = 4;

// What is wrong with a column that its user gives, at its field.
std::optional<Kusur> KolonKusuru(const BordroKolonu& kolon);

std::string BordroRaporuBaytlari(const BordroKolonlari& kolonlar);
// Whole records, a head of kind 2, columns that could have been made here; else BozukRapor.
Sonuc<BordroKolonlari> BordroRaporuCoz(std::string_view baytlar);

// Years and months are ranges of their own: months 1 to 3 of 2004 to 2005 are six months.
struct BordroRaporuSecimi {
  int ilkYil = 0, sonYil = 0;
  int ilkAy = 1, sonAy = 12;
  KisiAraligi kisiler = {};
  bool kisiBasina = false;  // a line a person: summed columns are sums, the others those of the last record
};

// The last month of the choice that has records, alone; the choice itself when none has. For a look at a report that
// need not read years. Throws MotorHatasi.
BordroRaporuSecimi SonAyi(Motor& motor, BordroRaporuSecimi secim);

// By code, year, month and run number. People without a card or an identity are not in it. Throws MotorHatasi,
// TutarTasmasi, and Vazgecilmis when stopped.
Rapor BordroRaporu(Motor& motor, const BordroKolonlari& kolonlar, const BordroRaporuSecimi& secim,
                   const RaporBicimi& bicim, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
