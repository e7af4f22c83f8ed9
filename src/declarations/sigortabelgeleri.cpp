#include "declarations/sigortabelgeleri.h"

#include "declarations/dortaylik.h"
#include "declarations/eksikgun.h"
#include "documents/secimalanlari.h"

namespace belvani {
namespace {

// Month by month, and of all four.
BelgeListesi DortAylikListesi() {
  return {.komut = " Hesapla",
          .toplamlar = {"T. Gün", "T. Kazanç"},
          .sutunlar = {{"1. Ay", {"gun1", "kaz1"}},
                       {"2. Ay", {"gun2", "kaz2"}},
                       {"3. Ay", {"gun3", "kaz3"}},
                       {"4. Ay", {"gun4", "kaz4"}},
                       {"Genel Toplam", {"topgun", "topkaz"}}}};
}

const std::vector<BelgeTanimi>& Tablo() {
  static const std::vector<BelgeTanimi> tablo{
      EksikGunTanimi(),
      {.ekran = "dortay",
       .komut = "dort-aylik",
       .menu = "Bildirgeler",
       .menuBasligi = "Dört Aylık Bildirge",
       .pencereBasligi = "Dörtaylık Sigorta Bildirimi",
       .simge = "tablo",
       .komutYardimi = "Dört aylık sigorta primleri bordrosunu verir: kişilerin aylarındaki gün ve kazançlar",
       .alanlar = {DortAyAlanlari()},
       .secim = Secenekleri(DortAylikBelgesi),
       .liste = DortAylikListesi()},
  };
  return tablo;
}

}  // namespace

const BelgeTanimi& EksikGunTanimi() {
  static const BelgeTanimi tanim{.ekran = "eksikgun",
                                 .komut = "eksik-gun",
                                 .menu = "Bildirgeler",
                                 .menuBasligi = "Eksik Gün Bildirim Formu EK-10",
                                 .pencereBasligi = "Eksik Gün Bildirimi EK-10",
                                 .simge = "takvim",
                                 .komutYardimi = "Ayın eksik gün bildirim formunu verir: eksik gün nedeni olan kişiler",
                                 .alanlar = {{DonemAlanlari("Dönem Yıl", "Dönem Ay")}},
                                 .secim = Secenekleri(EksikGunBelgesi),
                                 .mevzuat = {.ad = "SSK Taban Matrah"},
                                 .liste = {.komut = " Hesapla"},
                                 .kayitYok = "Bu ayda eksik gün nedeni olan kişi yok"};
  return tanim;
}

std::span<const BelgeTanimi> SigortaBelgeleri() {
  return Tablo();
}

}  // namespace belvani
