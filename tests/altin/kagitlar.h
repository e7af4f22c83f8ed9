// A paper under approval: the month whose law it is made under, the file of its record, and how it is made.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "altin/ornek.h"

namespace belvani::test {

struct Kagit {
  Ay ay;
  std::string ad;  // of the record, in the directory of the month
  std::function<std::string(OrnekSirket&)> yap;

  std::string Kayit() const { return ay.Metin() + "/" + ad; }
};

inline void PrintTo(const Kagit& kagit, std::ostream* akis) {
  *akis << kagit.Kayit();
}

using Kagitlar = std::vector<Kagit>;

// A month of each era of premium rules, with those of the sample company that show most.
inline constexpr Ay BirinciDonem{2004, 6}, IkinciDonem{2006, 8}, UcuncuDonem{2008, 7}, DorduncuDonem{2008, 11},
    SonAy{2009, 12};
inline constexpr Ay Donemler[] = {BirinciDonem, IkinciDonem, UcuncuDonem, DorduncuDonem, SonAy};

}  // namespace belvani::test
