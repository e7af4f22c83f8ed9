// The monthly declaration as a spreadsheet: the form `aylik.xlsx`, whose cells are filled in and whose other cells
// stay.
//
// Where which value goes is fixed by its addresses, so a user's own form with the same addresses is filled as well. It
// holds ten people, and there are no further pages: the eleventh comes to stand on the line of the sums, the next ones
// below it.
// Example: base 1,250.00 of which 250.00 is a bonus, first person -> DJ101 1000, EA101 250.
#pragma once

#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "declarations/bildirgekagidi.h"

namespace belvani {

struct BildirgeTablosu {
  std::string baytlar;
  std::string uyari;  // what its user should know; else empty
};

constexpr int TabloKisiSayisi = 10;

// Rows without a document type are passed over. Without any rows the form is given back as it is, to be filled in by
// hand. Fails on a form that cannot be filled. Throws TutarTasmasi.
Sonuc<BildirgeTablosu> BildirgeTablosuYap(std::string sablon, const BildirgeKagidi& kagit,
                                          Ilerleme* ilerleme = nullptr);

// The bytes of the first form that lies in one of the directories, in their order: `aylik.xlsx`, or one in the older
// format, `aylik.xls`, which the office program `donusturucu` converts. Fails when there is none, or it cannot be
// converted.
Sonuc<std::string> TabloSablonu(const std::vector<std::string>& dizinler, const std::string& donusturucu = "soffice");

// The user's form in the data path, else one beside the program, else the one that is shipped.
Sonuc<std::string> TabloSablonu(const Oturum& oturum);

}  // namespace belvani
