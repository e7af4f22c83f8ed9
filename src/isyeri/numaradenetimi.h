// What is wrong with the register number of a workplace, part by part.
#pragma once

#include <string>
#include <vector>

#include "core/tables/firma.h"

namespace belvani {

// Which parts of the 21 letters that the declaration wants are missing or of another length, by the names that the
// company's card gives them: "Meslek: 4 hane olmalı, 3 hane yazılı". Check digits are not among them; a province may be
// without its zeros.
// Example: a file number of 5 digits, all else right -> {"Dosya: 7 hane olmalı, 5 hane yazılı"}.
std::vector<std::string> NumaraEksikleri(const Firma& firma);
// The same as lines below "İşyeri Sicil Bilgisi 21 Karakter Olmalıdır"; "" for a number that is right.
std::string NumaraKusuru(const Firma& firma);
// Any part of it is there.
bool NumaraYazilmis(const Firma& firma);

}  // namespace belvani
