#include "payroll/hazirlik/firmadurumu.h"

#include "core/session/firmabilgi.h"

namespace belvani {

Durum FirmaDurumu::Yukle() {
  try {
    parametreler_ = FirmaDosyalariYukle(o_);
  } catch (const MotorHatasi& h) {
    return Kusur{h.what()};
  }
  ++surum_;
  Degisti();
  return Tamam();
}

Durum FirmaDurumu::KartKaydet(const Firma& kart) {
  const Durum kaydedildi = FirmaKaydet(o_, kart);
  const Durum yuklendi = Yukle();
  return kaydedildi ? yuklendi : kaydedildi;
}

}  // namespace belvani
