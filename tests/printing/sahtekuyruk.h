// Printers for tests: keeps the jobs that it is given.
#pragma once

#include <vector>

#include "printing/kuyruk.h"

namespace belvani::test {

struct SahteKuyruk final : Kuyruk {
  std::vector<YaziciBilgisi> yazicilar{2};
  std::vector<BaskiIsi> isler;
  std::string hata;

  SahteKuyruk() {
    yazicilar[0].ad = "lazer";
    yazicilar[1].ad = "matris";
    yazicilar[1].varsayilan = true;
  }

  Sonuc<std::vector<YaziciBilgisi>> Yazicilar() override { return yazicilar; }
  Sonuc<int> Gonder(const BaskiIsi& is) override {
    if (!hata.empty()) return Kusur{hata};
    isler.push_back(is);
    return int(isler.size());
  }
};

}  // namespace belvani::test
