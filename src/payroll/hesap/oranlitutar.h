// Amounts of a pay record that are a base times a rate, all three in the record. What a record says of itself can be
// held against them without the law of its month.
//
// Example: sskmatrah 693, sskiscior 14 -> 97.02 for sskkesinti.
#pragma once

#include <array>

#include "payroll/hesap/kayittoplami.h"

namespace belvani {

struct OranliTutar {
  Tutar Brd::*tutar;
  Tutar Brd::*matrah;
  Tek Brd::*oran;
  double payda;    // 100; the stamp duty's rate is per thousand
  const char* ad;  // "SSK işçi primi"

  double Hesabi(const Brd& b) const { return (b.*matrah).Sayi() * (b.*oran).Sayi() / payda; }
  // By how much the record is off it.
  double Farki(const Brd& b) const { return std::fabs((b.*tutar).Sayi() - Hesabi(b)); }
};

inline constexpr std::array<OranliTutar, 3> IscininTutarlari{
    {{&Brd::sskkesinti, &Brd::sskmatrah, &Brd::sskiscior, 100, "SSK işçi primi"},
     {&Brd::issizisci, &Brd::sskmatrah, &Brd::issiziscior, 100, "işsizlik işçi primi"},
     {&Brd::dvtutar, &Brd::dvmatrah, &Brd::damgaveror, 1000, "damga vergisi"}}};

// These hold as long as IsvereninTutariOranli says so.
inline constexpr std::array<OranliTutar, 2> IsvereninTutarlari{
    {{&Brd::sskkesintiisveren, &Brd::sskmatrahisveren, &Brd::sskisverenor, 100, "SSK işveren primi"},
     {&Brd::issizisveren, &Brd::sskmatrahisveren, &Brd::issizisverenor, 100, "işsizlik işveren primi"}}};

// An apprentice's bases stand in his record and are neither insured by him nor taxed.
inline bool KesintisizKayit(const Brd& b) {
  return Degeri(toplam::isciToplam, b) == Tutar();
}

// Paid leave relieves the employer of a part of his premium, and a base that was raised to the floor makes him bear the
// employee's part of the difference.
inline bool IsvereninTutariOranli(const Brd& b) {
  return b.ui == 0 && b.sskmatrahisveren == b.sskmatrah;
}

}  // namespace belvani
