#include "core/session/tekbasina.h"

#include "core/session/icerde.h"
#include "core/session/sirket.h"

namespace belvani {

Sonuc<std::unique_ptr<Motor>> TekBasinaAc(const VeriYolu& sirket, std::string_view yapilmayan) {
  const std::string yol = DepoAdresi(sirket);
  const auto kullaniliyor = [&](const std::vector<Icerdeki>& icerdekiler) {
    return Kusur{"Bu şirket şu anda kullanılıyor, " + std::string(yapilmayan) + ":\n" + yol +
                 IcerdekiSatirlari(icerdekiler)};
  };
  if (const auto icerdekiler = Icerdekiler(sirket); !icerdekiler.empty()) return kullaniliyor(icerdekiler);
  try {
    return MotorAc(yol, AcilisKipi::Tek);
  } catch (const MotorHatasi& h) {
    if (h.tur == MotorKusuru::Kilitli) return kullaniliyor({});
    // Of a server it only means that nobody can tell who has it open.
    if (sirket.Sunucuda()) return Kusur{std::string(h.what()) + ", " + std::string(yapilmayan) + ":\n" + yol};
    return std::unique_ptr<Motor>();
  }
}

}  // namespace belvani
