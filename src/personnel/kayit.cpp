#include "personnel/kayit.h"

#include "core/adlar.h"

namespace belvani {

std::optional<Kusur> SicilKoduKusuru(const std::string& kod, bool yeni) {
  if (kod.empty()) return KuralKusuru("Personel Sicil Kodu Hatalı", sicil::kod);
  if (yeni && GorunmezHarfVar(kod))
    return KuralKusuru("Personel Sicil Kodunda görünmeyen bir harf var, kodu klavyeden yazınız", sicil::kod);
  return std::nullopt;
}

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
