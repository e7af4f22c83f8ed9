#include "severance/kidembelgeleri.h"

#include "documents/secimalanlari.h"
#include "severance/kidemicmali.h"

namespace belvani {
namespace {

AlanGrubu BazAlanlari() {
  return {"Hesap",
          {{Uye("baz", &KidemIcmalSecimi::baz),
            "Baz Tarihi",
            {.ipucu = "Herkes bu gün ayrılsa", .komut = "--baz", .komutYardimi = "herkesin ayrılacağı gün"}},
           {Uye("tavan", &KidemIcmalSecimi::tavan),
            "Kıdem Tavanı",
            {.liste = KidemTavaniAdlari,
             .komut = "--tavan",
             .komutYardimi = "kurulu yasal oranların ya da baz tarihinin yarıyılının kıdem tavanı",
             .komutSozcukleri = KidemTavaniSozcukleri}}},
          1};
}

const std::vector<BelgeTanimi>& Tablo() {
  static const std::vector<BelgeTanimi> tablo{
      {.ekran = "kidicm",
       .komut = "kidem-icmal",
       .menu = "Ek Moduller/Kıdem, İhbar Modülü",
       .menuBasligi = "Kidem, İhbar İcmali",
       .pencereBasligi = "Kidem, İhbar İcmali",
       .simge = "tablo",
       .komutYardimi = "Herkes baz tarihinde ayrılsa ödenecek kıdem ve ihbar tazminatlarının listesi (basılmaz)",
       .alanlar = {{BazAlanlari()}, {AralikAlanlari(false, "Sicil No")}},
       .secim = Secenekleri(KidemIcmalBelgesi),
       .liste = {.komut = " Listele"},
       .kayitYok = "Baz tarihinde çalışan kişi yok"},
  };
  return tablo;
}

}  // namespace

std::span<const BelgeTanimi> KidemBelgeleri() {
  return Tablo();
}

}  // namespace belvani
