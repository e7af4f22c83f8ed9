// A person brought up for calculation: his card, family, year-to-date sums and the month's saved record.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/tables/sicil.h"
#include "payroll/hazirlik/kosullar.h"
#include "payroll/hesap/bordro.h"

namespace belvani {

// Sums of a person's stored records of the year.
struct YilToplamlari {
  Tutar gvmatrah;  // of earlier months: carried into this one
  Tutar gvtutar;
  std::array<Tutar, 3> indirimler{};  // of all months
};

// The rates of a record, as the screens call them: the tables give them, and the user may overtype them.
struct OranKolonu {
  Kolon<Brd, Tek> kolon;
  std::string_view ad;
};
inline constexpr std::array<OranKolonu, 5> OranKolonlari{{{brd::sskiscior, "SSK İşçi %"},
                                                          {brd::sskisverenor, "SSK İşveren %"},
                                                          {brd::issiziscior, "İşsizlik İşçi %"},
                                                          {brd::issizisverenor, "İşsizlik İşvr. %"},
                                                          {brd::damgaveror, "Damga V. Binde"}}};

struct KisiVerisi {
  Sicil sicil;
  Aile aile;
  YilToplamlari yil;
  std::optional<Brd> kayit;  // the month's saved record
};

// Values of a person from the store: one by code, or all in code order, with the same queries. Reading a company costs
// four queries, however many people it has. Throws MotorHatasi.
std::optional<KisiVerisi> KisiOku(Motor& motor, const BordroDonemi& donem, const std::string& kod);
// `her` gives false to stop. It may write pay records meanwhile.
void KisileriOku(Motor& motor, const BordroDonemi& donem, const std::function<bool(KisiVerisi&)>& her);

// The person as he comes onto the screen: rates from the tables, the template's days (or, in a part month, his days as
// days worked), the template's allowances; a saved record brings its own entries, rates and carried base instead.
// `kisi` and `kosullar` must outlive the result.
BordroGirdi PersonelYukle(const KisiVerisi& kisi, const Kosullar& kosullar, int CalismaGun);

// Points a calculation of the person at these conditions; entries and rates stay.
void KosullaraBagla(BordroGirdi& g, const KisiVerisi& kisi, const Kosullar& kosullar);

// Premium rates of a branch: the sums of the employee's and employer's columns, on the employer's side with the
// work-accident rate where the branch bears it; all 0 on the board-fee payroll. Branch 1 in 2009, rate 1 -> 14, 19.5,
// 1, 2.
void OranlariYukle(Brd& brd, const Sicil& sicil, const YasalParametreler& yasal, Tek TehlikeOran);

}  // namespace belvani
