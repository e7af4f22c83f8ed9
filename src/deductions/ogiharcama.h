// The declared expenses of a year, person by person (`ozgvharc`, `ogi-harcama`): listed, saved with the refund that
// follows from them, cleared.
//
// They stand in `dvr`, beside the base and the tax that were carried over. A person without a record of the year gets
// one, with the base that was typed and no tax.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/silme.h"
#include "core/store/cakisma.h"
#include "core/tables/dvr.h"
#include "deductions/ogikosullari.h"

namespace belvani {

// A person's row of the list.
struct OgiHarcamasi {
  std::string adSoyad;
  Dvr dvr;
};

// Everybody who has a record of the year and a card, in the order of codes.
Sonuc<std::vector<OgiHarcamasi>> OgiHarcamalariOku(Oturum& o, int yil);

// "2004001", the key of a person's year.
std::string DvrAnahtari(int yil, std::string_view kod);

// The person of a typed code: his name, and his record of the year as it is stored. The fault: nobody has the code, or
// none was typed.
struct OgiKisiKaydi {
  std::string adSoyad;
  std::optional<Dvr> dvr;
};
Sonuc<OgiKisiKaydi> OgiKisisiBul(Oturum& o, int yil, std::string_view kod);

// `girilen` with base and expense as typed (and the code, where there was no record): the record that goes into the
// store, with the refund that follows. The fault: there is no table, or an amount below zero or out of range.
Sonuc<Okunan<Dvr>> OgiHarcamasiIsle(const OgiKosullari& kosullar, Okunan<Dvr> girilen);

// How the refund of a record came to be, in one line: "İndirim 1,000.00 · matrah 11,000.00 · vergi 1,950.00 · …".
std::string OgiHesapSatiri(const OgiKosullari& kosullar, const Dvr& dvr, int ondalik);

// OgiHarcamasiIsle, and the record written. What another user has changed meanwhile is calculated with at the next
// attempt.
Yazim<Dvr> OgiHarcamaKaydet(Oturum& o, const OgiKosullari& kosullar, const Okunan<Dvr>& girilen);

// Asks, and clears the expense; the refund stays as it is. Gives the record as it is stored then, nothing when the
// answer was no.
Sonuc<std::optional<Dvr>> OgiHarcamaSil(Oturum& o, std::string_view yilkod, Bildirim& bildirim);

}  // namespace belvani
