// The entry list of a month: days, hours, allowances, missing days, debt and rates of people, from a CSV file.
#pragma once

#include <string>
#include <vector>

#include "cli/sorunlar.h"
#include "payroll/hazirlik/hazirlik.h"

namespace belvani::cli {

struct GirisDosyasi {
  std::string ad;
  OndalikImi ondalik = OndalikImi::Belirsiz;
};

// A column of the file is entered for every person in it, an empty cell as 0, but of a rate and of the unpaid days as
// none; a column that is not in the file stays as the template or the saved record has it. Every fault is told with row
// and column in one KomutHatasi.
std::vector<GirisSatiri> GirisListesiOku(const std::string& csv, const GirisDosyasi& dosya,
                                         const SorunListesi& sorunlar);

// Columns of the pay record that are entered, by name; null for any other.
const AlanTanimi* GirisAlani(std::string_view ad);

}  // namespace belvani::cli
