#include "documents/listebelgesi.h"

#include "core/store/satirlar.h"

namespace belvani {

Firma FirmaKaydiOku(Motor& motor) {
  auto kayitlar = KayitlariOku<Firma>(motor);
  return kayitlar.empty() ? Firma{} : std::move(kayitlar.front());
}

DefterBaslik BaslikOku(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  return {.yil = secim.yil,
          .ay = secim.ay,
          .firma = FirmaKaydiOku(kaynak.motor),
          .damgaOran = kaynak.yasal.oranlar.DamgaOran,
          .paraonda = kaynak.paraonda};
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
