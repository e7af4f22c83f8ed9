// The register number of a workplace: groups of digits that every statutory paper shows, each in its own boxes.
#pragma once

#include <array>
#include <string>

#include "core/tables/firma.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

// A group, named after its column.
struct NumaraGrubu {
  const char* ad;
  std::string deger;
};

// In the order of the number: sector, line of business, unit, file, province, district, check digits.
std::array<NumaraGrubu, 7> NumaraGruplari(const Firma& firma);

// The groups that are known, parted by blanks: "2 8010 01 01 1234567 034 01 25".
std::string IsyeriSicilNo(const Firma& firma);

// The province group with its zeros: "34" -> "034".
std::string IlKodu(const Firma& firma);

// Digit by digit under its captions, with the code of the intermediary; on a ruled page (satirliform.h), four lines.
constexpr double IsyeriNumarasiEni = 158;
int IsyeriNumarasi(FormKurucu& f, double x, int satir, const Firma& firma, const std::string& araciKodu);

}  // namespace belvani
