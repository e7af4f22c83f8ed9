#include "core/session/aracibilgi.h"

#include "core/store/tablo.h"

namespace belvani {

namespace {

Arac Simdiki(const std::optional<Arac>& kayit) {
  if (kayit) return *kayit;
  Arac bos;
  bos.kod = "000";
  return bos;
}

}  // namespace

Okunan<Arac> AraciDuzenle(Oturum& o) {
  Veritabani& db = o.depo.db;
  const auto kayit = db.Koru(std::optional<Arac>(), [&] { return Tablo<Arac>(db.IcMotor()).Bul(); });
  return {.ilk = kayit, .simdi = Simdiki(kayit)};
}

Arac AraciOku(Motor& motor) {
  return Simdiki(Tablo<Arac>(motor).Bul());
}

Yazim<Arac> AraciKaydet(Oturum& o, const Okunan<Arac>& araci) {
  const Yazim<Arac> yazilamadi{YazmaEngeli<Arac>(Kusur{"Aracı Bilgileri Kaydedilemedi"})};
  Veritabani& db = o.depo.db;
  return db.Koru(yazilamadi, [&] {
    auto yazim = Tablo<Arac>(db.IcMotor()).Yaz(araci);
    return yazim || yazim.Kusuru().cakisma ? std::move(yazim) : yazilamadi;
  });
}

}  // namespace belvani
