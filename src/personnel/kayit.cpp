#include "personnel/kayit.h"

namespace belvani {

Kimlik YeniKimlik(std::string_view kod) {
  Kimlik yeni;
  yeni.kod = kod;
  yeni.uyruk = "T.C.";
  return yeni;
}

bool KisiSil(Oturum& o, const std::string& kod) {
  return o.depo.db.Koru(false, [&] {
    Islem islem(o.depo.db.IcMotor());
    KisiTablosu<Sicil>(o).Sil(kod);
    KisiTablosu<Kimlik>(o).Sil(kod);
    islem.Onayla();
    return true;
  });
}

}  // namespace belvani
