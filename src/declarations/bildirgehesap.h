// The monthly premium and service declaration: its state, and how it is worked out.
//
// Each finished pay record of the month gives a row; counters and the premium bases of six branches are summed, and
// each base is priced with the rate of its branch, of both sides together. Law 506, article 79; law 5510, article 86.
//
// Who is counted as insured is decided by the employee's base `sskmatrah`; what is declared is the employer's,
// `sskmatrahisveren`. A base enters each branch that the person's insurance status pays into: work accidents by the
// flag of the status, the others when their rates of both sides come to more than zero.
// Example: 30 days on a base of 1,000.00 at status 1 in July 2009, hazard rate 1 %: bases 1,000.00 for work accidents,
// sickness (12.5 %), invalidity (20 %) and unemployment (3 %), premiums 10.00, 125.00, 200.00, 30.00, together 365.00.
#pragma once

#include <array>
#include <vector>

#include "core/tables/brd.h"
#include "core/tables/sicil.h"
#include "core/yuvarlama.h"
#include "declarations/bildirgesatiri.h"
#include "payroll/hesap/donem.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

// In the order of the screen's choices.
enum class BelgeMahiyeti { Iptal, Ek, Asil };

// What the declaration is made for. Positions 0 of the lists take all.
struct BildirgeSecimi {
  int yil = 0;
  int ay = 1;         // 1 to 12
  int belgeTuru = 0;  // position in the list of statuses
  int kanun = 0;      // position in the list of laws
  BelgeMahiyeti mahiyet = BelgeMahiyeti::Asil;
};

// The counters and bases below the grid.
struct BildirgeToplamlari {
  int sigortali = 0;       // "Sigortalı Sayısı"
  int gun = 0;             // "Prim Ödenen Gün"
  int giren = 0;           // "İşe Girenler"
  int ayrilan = 0;         // "İşten Ayrılanlar"
  int ucretsizIzinli = 0;  // "Ücretsiz İzinli"
  int ucretsizGun = 0;     // "Ücretsiz İzinli Gün"
  int ucretliIzinli = 0;   // "Ücretli İzinli Sayısı"
  Tutar ucretliKazanc{};   // "Ücretli İzinli Kazancı"
  int ucretliGun = 0;      // "Ücretli İzinli Gün"
  Tutar kisaVade{};        // "Kısa Vadeli Sigorta": work accidents
  Tutar analik{};          // maternity
  Tutar saglik{};          // "Genel Sağlık Sigortası": sickness
  Tutar uzunVade{};        // invalidity, old age, death
  Tutar destek{};          // "Sosyal Güvenlik Destek Primi"
  Tutar issizlik{};        // "İşsizlik Sigortası Primi"

  bool operator==(const BildirgeToplamlari&) const = default;
};

// The branches, in the order of the bases; the first has no column among the rates.
constexpr std::size_t BransSayisi = 6;
constexpr std::size_t AnalikBransi = 1;  // its line shows the state's contribution in place of a premium
inline constexpr std::array<Tutar BildirgeToplamlari::*, BransSayisi> BransMatrahlari{
    &BildirgeToplamlari::kisaVade, &BildirgeToplamlari::analik, &BildirgeToplamlari::saglik,
    &BildirgeToplamlari::uzunVade, &BildirgeToplamlari::destek, &BildirgeToplamlari::issizlik};

using BransOranlari = std::array<Tek, BransSayisi>;  // percent

struct BildirgePrimleri {
  std::array<Tutar, BransSayisi> primler{};  // as the lines show them
  Tutar genelToplam;                         // "Genel Toplam", without the state's contribution
};

struct Bildirge {
  BildirgeSecimi secim;
  std::vector<BildirgeSatiri> satirlar;
  int sonNo = 0;                          // of the rows that there ever were
  std::vector<std::string> kimliksizler;  // codes of people who are left out: they have no identity record
  BildirgeToplamlari toplamlar;
  Tutar DevletKatki;  // the state's contribution, of the records as they were read
  BransOranlari PrimOran{};
  BildirgePrimleri prim;
};

// A pay record with its person. Of the records those columns are filled that the declaration reads.
struct BildirgeKaydi {
  Brd brd{};
  Sicil sicil{};
  std::string tcno{};
  bool kimlikVar = true;
  bool farkVar = true;
};

// What is the same for all records.
struct BildirgeKosullari {
  const YasalParametreler& yasal;
  BordroDonemi donem;
  Yuvarlayici yuvarla;
};

// Puts a row at the end and gives its number.
int SatirEkle(Bildirge& bildirge, BildirgeSatiri satir);

// Adds the row of a record, and the record to the totals. A person without an identity record is not declared: his code
// is noted, and that is all. Throws TutarTasmasi.
void KaydiEkle(Bildirge& bildirge, const BildirgeKaydi& kayit, const BildirgeKosullari& kosullar);

// The totals of the rows as they stand in the grid, for after one was changed or deleted. They may differ from the
// first ones: every row is counted as insured, whatever its base; unpaid leave counts the reason's code in place of
// the days, also for whole months; every row with days counts as one with paid leave; and bases need no days. Rows
// without a document type do not count. Throws TutarTasmasi.
BildirgeToplamlari ToplamlariYenile(const std::vector<BildirgeSatiri>& satirlar, const YasalParametreler& yasal);

// Rates of the five branches after work accidents, whose own is `tehlikeOrani`. belgeTuru 0, all statuses together:
// those of the first status, but invalidity, old age and death from the second.
BransOranlari PrimOranlari(const YasalParametreler& yasal, int belgeTuru, Tek tehlikeOrani);

// Base × rate / 100 of each branch, money-rounded, and their sum. The line of maternity then shows the state's
// contribution, less than zero, though its own premium is in the sum. Throws TutarTasmasi.
BildirgePrimleri PrimleriHesapla(const BildirgeToplamlari& toplamlar, const BransOranlari& PrimOran, Tutar DevletKatki,
                                 Yuvarlayici yuvarla);

}  // namespace belvani
