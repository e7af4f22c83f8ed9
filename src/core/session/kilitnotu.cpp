#include "core/session/kilitnotu.h"

#include "core/session/icerde.h"

namespace belvani {

std::string KilitliMetin(const Oturum& o, const MotorHatasi& hata) {
  if (hata.tur != MotorKusuru::Kilitli) return hata.what();
  const std::string satirlar = IcerdekiSatirlari(Icerdekiler(o.FirmaDizini, o.icerde.get()));
  return hata.what() + (satirlar.empty() ? std::string() : "\nŞirkette çalışanlar:" + satirlar);
}

}  // namespace belvani
