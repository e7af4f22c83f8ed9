// TarihAraligi: the choice of papers about what happened between two days, both of them included.
#pragma once

#include <optional>

#include "documents/belgetanimi.h"

namespace belvani {

// Days in the wrong order are no fault: nothing lies between them.
struct TarihAraligi {
  Tarih bas;
  Tarih bit;

  void AyKoy(int yil, int ay);  // the whole month
  BelgeZamani Zaman() const;    // the law of the month in which it ends
  std::optional<Kusur> Kusuru() const;
};

// "--bas", "--bit".
AlanGrubu TarihAraligiAlanlari(const char* basEtiketi, const char* bitEtiketi);

}  // namespace belvani
