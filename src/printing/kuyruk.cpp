#include "printing/kuyruk.h"

#include <algorithm>

namespace belvani {

Sonuc<YaziciBilgisi> YaziciSec(Kuyruk& kuyruk, const std::string& ad) {
  const auto yazicilar = kuyruk.Yazicilar();
  if (!yazicilar) return yazicilar.Kusuru();
  if (yazicilar->empty()) return Kusur{YaziciYok};
  const auto bul = [&](auto uyar) { return std::find_if(yazicilar->begin(), yazicilar->end(), uyar); };
  auto secilen = ad.empty() ? bul([](auto& y) { return y.varsayilan; }) : bul([&](auto& y) { return y.ad == ad; });
  if (secilen == yazicilar->end()) {
    if (!ad.empty()) return Kusur{ad + " adında bir yazıcı yok"};
    secilen = yazicilar->begin();
  }
  if (!secilen->isAliyor) return Kusur{secilen->ad + ": yazıcı yeni iş kabul etmiyor"};
  return *secilen;
}

}  // namespace belvani
