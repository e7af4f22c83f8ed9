// The voucher as a journal entry in the plain text that Ledger and hledger share:
//
//   ; Örnek Dokuma Sanayi ve Ticaret A.Ş. - Aralık 2009
//   2009-12-31 Aralık 2009 Ücret Tahakkuku
//       770.01        52000.00 TL  ; Brüt Ücretler
//       335.01       -52000.00 TL  ; Personele Ödenecek Ücretler
//
// Amounts are to the kuruş. Those programs refuse an entry that does not balance: a last line takes the difference.
#pragma once

#include <string>
#include <string_view>

#include "accounting/fis.h"
#include "accounting/hesapplani.h"
#include "core/tarih.h"

namespace belvani {

inline constexpr const char* FarkHesabi = "Denkleşmeyen";

struct FisBasligi {
  std::string unvan;  // of the company
  Tarih tarih;
  std::string fisno;  // as it is shown; "" while it has none
  int paraonda = 2;
};

// An account's code as both programs read it: a sign that has a meaning to them gives way to a harmless one.
std::string YevmiyeHesabi(std::string_view kod);

std::string YevmiyeMaddesi(const Fis& fis, const FisBasligi& baslik, const HesapPlani& plan);

// What the entry's user must know of that last line; "" when there is none.
std::string YevmiyeUyarisi(const Fis& fis);

}  // namespace belvani
