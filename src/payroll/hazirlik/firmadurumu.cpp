#include "payroll/hazirlik/firmadurumu.h"

#include "core/session/firmabilgi.h"
#include "core/store/koru.h"

namespace belvani {

Durum FirmaDurumu::Yukle() {
  if (const Durum okundu = Koru([&] { parametreler_ = FirmaDosyalariYukle(o_); }); !okundu) {
    if (Gecerli()) return okundu;
    parametreler_ = {};
    sirket_.clear();
    return Kusur{"Şirketin parametreleri okunamadı: " + o_.FirmaKod + "\n" + okundu.KusurMetni()};
  }
  sirket_ = o_.FirmaDizini;
  ++surum_;
  Degisti();
  return Tamam();
}

Yazim<Firma> FirmaDurumu::KartKaydet(const Okunan<Firma>& kart) {
  auto kaydedilen = FirmaKaydet(o_, kart);
  if (!kaydedilen && kaydedilen.Kusuru().cakisma) return kaydedilen;
  const Durum yuklendi = Yukle();
  if (kaydedilen && !yuklendi) return YazmaEngeli<Firma>(yuklendi.Kusuru());
  return kaydedilen;
}

}  // namespace belvani
