#include "core/session/aracibilgi.h"

#include "core/store/tablo.h"

namespace belvani {

Okunan<Arac> AraciDuzenle(Oturum& o) {
  Veritabani& db = o.depo.db;
  Okunan<Arac> araci{.ilk = db.Koru(std::optional<Arac>(), [&] { return Tablo<Arac>(db.IcMotor()).Bul(); }),
                     .simdi = {}};
  araci.simdi.kod = "000";
  if (araci.ilk) araci.simdi = *araci.ilk;
  return araci;
}

Yazim<Arac> AraciKaydet(Oturum& o, const Okunan<Arac>& araci) {
  const Yazim<Arac> yazilamadi{YazmaEngeli<Arac>(Kusur{"Aracı Bilgileri Kaydedilemedi"})};
  Veritabani& db = o.depo.db;
  auto sonuc = db.Koru(yazilamadi, [&] { return Tablo<Arac>(db.IcMotor()).Yaz(araci); });
  return sonuc || sonuc.Kusuru().cakisma ? std::move(sonuc) : yazilamadi;
}

}  // namespace belvani
