// The company's address in the two lines that statutory papers give it.
#pragma once

#include <array>
#include <string>

#include "core/tables/firma.h"
#include "core/turkce.h"

namespace belvani {

// Empty parts are passed over: {"Sanayi Cad. 17", "Kat 3 Ümraniye İstanbul"}.
inline std::array<std::string, 2> FirmaAdresi(const Firma& firma) {
  std::array<std::string, 2> satirlar{std::string(Kirp(firma.adr1)), {}};
  for (const auto* parca : {&firma.adr2, &firma.semt, &firma.adrilce, &firma.adril}) {
    if (Kirp(*parca).empty()) continue;
    if (!satirlar[1].empty()) satirlar[1] += ' ';
    satirlar[1] += Kirp(*parca);
  }
  return satirlar;
}

}  // namespace belvani
