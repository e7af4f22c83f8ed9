#include "documents/listebelgesi.h"

namespace belvani {

DefterBaslik BaslikYap(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  return {.yil = secim.yil,
          .ay = secim.ay,
          .firma = kaynak.firma,
          .damgaOran = kaynak.yasal.oranlar.DamgaOran,
          .paraonda = kaynak.firma.paraonda};
}

YzcAyarlari BaskiAyari(const std::string& baslik, KagitYonu yon) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = baslik;
  ayar.YzcYon = yon;
  return ayar;
}

std::unique_ptr<Belge> ListeBelgesi(Rapor rapor, KagitYonu yon, const BelgeYazisi& yazi, const SayfaDuzeni& sayfa,
                                    const std::string& unvan) {
  const GrafikDuzeni grafik{.yon = {},
                            .punto = double(yazi.punto),
                            .aile = AileBul(yazi.yaziTipi),
                            .satirArasi = sayfa.satirArasi,
                            .kolonArasi = sayfa.kolonArasi};
  const YzcAyarlari ayar = BaskiAyari(rapor.baslik, yon);
  return std::make_unique<RaporBelgesi>(std::move(rapor), ayar, grafik, sayfa, unvan);
}

DefterSecim Sirali(DefterSecim secim, DefterSirasi sira) {
  secim.sira = sira;
  return secim;
}

}  // namespace belvani
