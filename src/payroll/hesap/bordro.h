// The gross-to-net calculation: from a person's terms, the month's entries and the parameters to every amount of the
// pay record.
//
// A function from values to values: no store, clock, locale or session. What the rules ask for (year-to-date sums,
// family, union) is gathered beforehand into BordroGirdi, by one loader for the screen, the mass run and the command
// line, so that all three give the same kuruş.
//
// The order of the steps is part of the law as practised: each store of an amount rounds to four decimals, a step
// money-rounds (Yuvarlayici) only where it says so, and this difference decides the last kuruş of several fields.
//
// Worked example (2009, second half; 30 days; gross 693.00; single; 6 per thousand, 15 %; lowest hazard class):
//   sskmatrah 693.00 -> sskkesinti 97.02, issizisci 6.93 -> gvmatrah 589.05 -> gvtutar 88.36, ogv 49.95,
//   dvtutar 4.16 -> NetOdenen 546.48; employer 135.14 and 13.86.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/koru.h"
#include "core/tables/brd.h"
#include "core/tables/sendika.h"
#include "core/tables/sicil.h"
#include "payroll/hesap/agi.h"
#include "payroll/hesap/indirim.h"
#include "payroll/hesap/iz.h"
#include "payroll/hesap/muafiyet.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

// Values that one calculation reads. What it points to must outlive the call.
struct BordroGirdi {
  const Sicil* sicil = nullptr;  // wage terms, branch, law, deductions of the person
  const YasalParametreler* yasal = nullptr;
  const YardimTanimlari* yardimlar = nullptr;  // exemption rules of the allowance lines
  const IndirimTanimlari* indirimler = nullptr;
  const Sendika* sendika = nullptr;  // of the person; null when there is none

  // Entered or carried: period, days, hours, allowances, rates and multipliers, damgaveror, devgvmatrah, devgvtutar,
  // borckes. Its amounts are not read.
  Brd giris;
  KazancBayraklari bayraklar;  // of the person's group
  Aile aile;
  std::array<Tutar, 3> yilIndirimi{};  // deductions 1 to 3 of all stored months of the year
  Tek IsSaati{8};                      // daily working hours of the company, never 0
  Tek TehlikeOran;                     // TehlikeOrani of the company
  int paraonda = 2;
  int CalismaGun = 30;  // days the person may work in the period
  int uygulama = 0;     // UygulamaBul of the month
};

struct BordroSonucu {
  Brd brd;  // the whole record, ready to be stored
  Tutar NetOdenen;
  int SskGun = 0;
  bool gunFazla = false;  // more days than the person may work: nothing was calculated
};

// Why the calculation cannot run on these values ("Sakatlık derecesi 0 ile 3 arasında olmalı"); nothing when it can.
// The functions below ask for a girdi without fault.
std::optional<Kusur> GirdiKusuru(const BordroGirdi& girdi);

// The calculation proper. Throws TutarTasmasi when an amount leaves its range.
BordroSonucu BrutNetHesapla(const BordroGirdi& girdi);
// The same, every step added to `iz`.
BordroSonucu BrutNetHesapla(const BordroGirdi& girdi, Iz& iz);

// As one entry of the payroll screen runs it: the days are counted against CalismaGun, the template's allowances are
// spread over them when there is one, then BrutNetHesapla.
BordroSonucu BordroHesapla(const BordroGirdi& girdi, const Sablon* sablon, Iz* iz = nullptr);

// Runs `is`; an amount that leaves its range is a fault, in the words of the payroll.
template <class Is>
auto TasmaKoru(Is&& is) {
  return Yakala<TutarTasmasi>(is, [](const auto&) { return KuralKusuru("Hesaplanan bir tutar sınırı aşıyor"); });
}

// The premium days: ng + ht + ui + rt + mi + ha.
int SskGunu(const Brd& brd);

}  // namespace belvani
