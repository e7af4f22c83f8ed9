#include "severance/kidemodemesi.h"

namespace belvani {

std::optional<KidemOdemeleri> KidemOdemeleriYap(const KidemCizelgesi& cizelge) {
  if (!cizelge.sonuc.tutarlar) return std::nullopt;
  const auto odeme = [&](std::string_view brutAdi, std::string_view netAdi) {
    const Tutar brut = KidemTutariBul(cizelge, brutAdi).value_or(Tutar());
    const Tutar net = KidemTutariBul(cizelge, netAdi).value_or(Tutar());
    return KidemOdemesi{brut, brut - net, net};
  };
  return KidemOdemeleri{.ihbar = odeme("brutIhbar", "netIhbar"), .kidem = odeme("brutKidem", "netKidem")};
}

}  // namespace belvani
