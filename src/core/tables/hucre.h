// The cell of a file as a value of its column: what MetindenDeger does, with numbers in either notation.
#pragma once

#include "core/okunus.h"
#include "core/tables/alan.h"

namespace belvani {

Deger HucredenDeger(const AlanTanimi& alan, std::string_view metin, OndalikImi im, std::string& kusur);

}  // namespace belvani
