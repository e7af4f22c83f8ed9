// Between the engine's columns and the field types of the schema.
#pragma once

#include "core/store/motor.h"

namespace belvani {

// A result column as a value of the field's type. What does not read as one (a broken store) gives Null or zero.
Deger KolondanDeger(const Komut& komut, int kolon, AlanTipi tip);

// The same for a column of which nothing is known.
Deger KolondanDeger(const Komut& komut, int kolon);

// A value made fit for a field: digits in a text become a number, a number becomes money, control characters go.
// When it cannot be fitted, `kusur` says why and Null is returned.
Deger Uydur(const AlanTanimi& alan, const Deger& deger, std::string& kusur);

// The field type behind a column type as a table declares it ("varchar(8)", "bigint"); text when unknown.
AlanTipi BildirilenTip(std::string_view tip);

}  // namespace belvani
