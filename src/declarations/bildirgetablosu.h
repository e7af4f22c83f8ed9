// The monthly declaration as a spreadsheet: the form `aylik.xlsx`, whose cells are filled in and whose other cells
// stay.
//
// Where which value goes is fixed by its addresses, so a user's own form with the same addresses is filled as well;
// what only the shipped form has (sablonyerleri.h) is filled there alone. A sheet holds ten people; for more of them
// further sheets are added, copies of the form's first one. The totals of the declaration stand on the first sheet, the
// line of the sums has those of its own sheet, on the last one those of all. Example: base 1,250.00 of which 250.00 is
// a bonus, first person -> DJ101 1000, EA101 250.
#pragma once

#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "declarations/bildirgekagidi.h"

namespace belvani {

constexpr std::size_t TabloKisiSayisi = 10;
constexpr std::size_t TabloSayfaSiniri = 50;

// What of a person's base is wage and what bonus. The wage is below zero where the bonus has filled the base.
struct KazancBolumu {
  Tutar ucret;
  Tutar ikramiye;
};
KazancBolumu KazanciBol(const BildirgeSatiri& satir);

// The bytes of the filled form. Rows without a document type are passed over. Without any rows the form is given back
// as it is, to be filled in by hand. Fails on a form that cannot be filled, and on more people than its sheets may be.
// Throws TutarTasmasi.
Sonuc<std::string> BildirgeTablosuYap(std::string sablon, const BildirgeKagidi& kagit, Ilerleme* ilerleme = nullptr);

// The bytes of the first form that lies in one of the directories, in their order: `aylik.xlsx`, or one in the older
// format, `aylik.xls`, which the office program `donusturucu` converts. Fails when there is none, or it cannot be
// converted.
Sonuc<std::string> TabloSablonu(const std::vector<std::string>& dizinler, const std::string& donusturucu = "soffice");

// The user's form in the data path, else one beside the program, else the one that is shipped.
Sonuc<std::string> TabloSablonu(const Oturum& oturum);

}  // namespace belvani
