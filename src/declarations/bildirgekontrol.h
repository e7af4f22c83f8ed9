// What must be right before a declaration leaves the program, whether as a file, on paper or in a spreadsheet.
//
// Faults come in the order of the checks: month, company, then row by row, of each row the first alone. A row's fault
// names its person, its place in the grid and its column. Nothing is told here (AylikBildirge::BildirgeKontrol).
// Example: check code "00" -> "Hatalı İşyeri Kontrol Kodu..  01 ile 99 arası olmalı".
#pragma once

#include <string>

#include "core/kusur.h"
#include "core/tables/firma.h"
#include "declarations/bildirgehesap.h"

namespace belvani {

// The employer as the declaration names him.
struct IsyeriBilgileri {
  std::string IsyeriSicil;    // register number, 21 characters
  std::string KontrolNo;      // its check digits
  std::string AraciNo;        // code of the subcontractor, "000" for none
  std::string IsyeriUnvan;    // at most 50 letters
  std::string IsyeriAdres;    // at most 50 letters
  std::string IsyeriVergiNo;  // may be empty
  std::string FirmaKanun;     // law of rows that have none of their own
  std::string SicilKusuru{};  // what is wrong with the register number, part by part
};

IsyeriBilgileri IsyeriniHazirla(const Firma& firma, const std::string& araciKodu);

// A year that a declaration can be of.
bool BildirgeYiliMi(int yil);

// Derece::Hata stops the declaration, Derece::Uyari does unless the user lets it through, Derece::Bilgi is only told.
Kusurlar BildirgeKontrol(const Bildirge& bildirge, const IsyeriBilgileri& isyeri);

}  // namespace belvani
