#include "core/session/sirketkartlari.h"

#include "core/asama.h"
#include "core/session/sirket.h"
#include "core/store/depokopyasi.h"
#include "core/store/koru.h"
#include "core/store/sunucukartlari.h"
#include "core/store/tablo.h"

namespace belvani {

std::vector<std::optional<Firma>> SirketKartlari(const VeriYolu& veri, const std::vector<std::string>& adlar,
                                                 Ilerleme* ilerleme) {
  if (veri.Sunucuda()) {
    auto kartlar = Koru([&] { return SunucudakiKartlar(veri.Adres(), adlar); });
    return kartlar ? std::move(*kartlar) : std::vector<std::optional<Firma>>(adlar.size());
  }
  std::vector<std::optional<Firma>> kartlar;
  Asama asama(ilerleme, adlar.size());
  for (const std::string& ad : adlar) {
    asama.Adim();
    auto kart = Koru([&] { return Tablo<Firma>(*MotorBak(DepoAdresi(veri.Alt(ad)))).Bul(); });
    kartlar.push_back(kart ? std::move(*kart) : std::nullopt);
  }
  return kartlar;
}

}  // namespace belvani
