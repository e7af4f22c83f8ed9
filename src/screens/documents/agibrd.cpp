#include "screens/documents/agibrd.h"

namespace belvani {

agibrd::agibrd(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : BelgeEkrani(baglam, parametreler, "agibrd", QStringLiteral("A.G.İ. Bordrosu")) {
  AlanlariDiz({{DonemAlanlari("Bordro Yılı", "Bordro Ayı"), AralikAlanlari(true, "Sicil No")}});
  BelgeKomutlari();
  Yukle(IlkSecim());
}

std::unique_ptr<Belge> agibrd::BelgeYap() {
  SecimFormu secim;
  return Oku(secim) ? AgiBelgesi(Kaynak(), secim.Secim()) : nullptr;
}

}  // namespace belvani
