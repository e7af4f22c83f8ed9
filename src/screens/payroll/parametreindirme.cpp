#include "screens/payroll/parametreindirme.h"

#include "ui/uzunis.h"

namespace belvani {

MevzuatSorusu::Getiren ParametreIndirme(EkranBaglami& baglam, ParametreDeposu& parametreler) {
  return [&baglam, &parametreler](MevzuatAyi ay, MevzuatIstegi istek) -> std::optional<Sonuc<MevzuatKurulumu>> {
    bool vazgecildi = false;
    auto kurulum = UzunIs(baglam, QStringLiteral("Parametre indiriliyor…"), [&](Ilerleme& ilerleme) {
      istek.sinir.ilerleme = &ilerleme;
      auto indirme = parametreler.MevzuatiGetir(baglam.oturum, ay, istek);
      vazgecildi = ilerleme.Vazgecildi();
      return indirme;
    });
    if (!vazgecildi || (kurulum && *kurulum)) return kurulum;
    baglam.bildirim.Bilgi("Parametre indirmeden vazgeçildi, hiçbir şey değişmedi.");
    return std::nullopt;
  };
}

}  // namespace belvani
