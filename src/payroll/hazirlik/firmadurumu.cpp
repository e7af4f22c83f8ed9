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

FirmaDurumu::Donem FirmaDurumu::KomsuDonem(Yon yon) const {
  const int ayNo = o_.firma.firmayil * 12 + o_.firma.firmaay - 1 + (GeriyeMi(yon) ? -1 : 1);
  return {ayNo / 12, ayNo % 12 + 1};
}

Durum FirmaDurumu::DonemKaydir(Yon yon) {
  Okunan<Firma> kart = FirmaDuzenle(o_);
  if (!kart.ilk) return Kusur{"Şirket Bilgileri Bulunamadı"};
  const Donem donem = KomsuDonem(yon);
  if (donem.yil < EnAzDonemYili || donem.yil > EnCokDonemYili)
    return KuralKusuru("Dönem Yıl: " + std::to_string(EnAzDonemYili) + " ile " + std::to_string(EnCokDonemYili) +
                       " arasında olmalı");
  kart.simdi.firmayil = std::int16_t(donem.yil);
  kart.simdi.firmaay = std::uint8_t(donem.ay);
  const Firma eski = o_.firma;
  if (const auto yazilan = KartKaydet(kart); !yazilan) {
    o_.firma = eski;
    return Kusur{"Şirket Bilgileri Güncellenemedi\n" + yazilan.KusurMetni()};
  }
  return Tamam();
}

}  // namespace belvani
