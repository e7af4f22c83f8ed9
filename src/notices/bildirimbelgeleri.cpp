#include "notices/bildirimbelgeleri.h"

#include "notices/dizikagidi.h"
#include "notices/ekbelgeleri.h"

namespace belvani {
namespace {

AlanGrubu Tarihler() {
  return TarihAraligiAlanlari("Başlangıç Tarih", "Bitiş Tarih");
}

AlanGrubu EsasIsAlani() {
  return {"İşyeri",
          {{Uye("isi", &EsasIs::isi, EsasIs::Harf),
            "İş Yerinde Yapılan Esas İş",
            {.komut = "--is", .komutYardimi = "işyerinde yapılan esas iş (verilmezse firma kartındaki)"}}}};
}

BelgeListesi Listesi() {
  return {.komut = "Listele"};
}

// Days without anyone give an empty list, and nothing is said of it.
const std::vector<BelgeTanimi>& Tablo() {
  static const std::vector<BelgeTanimi> tablo{
      {.ekran = "pergblst",
       .komut = "giris-listesi",
       .menu = "Bildirgeler",
       .menuBasligi = "İşçi Giriş Bildirim Listesi (Ek-1)",
       .pencereBasligi = "İşçi Giriş Bildirim Listesi (Ek-1)",
       .simge = "liste",
       .komutYardimi = "İki tarih arasında işe girenlerin bildirim listesini verir (EK-1)",
       .alanlar = {{Tarihler(), EsasIsAlani()}},
       .secim = Secenekleri(GirisListesiBelgesi),
       .liste = Listesi(),
       .kayitYok = ""},
      {.ekran = "PERCBLST",
       .komut = "cikis-listesi",
       .menu = "Bildirgeler",
       .menuBasligi = "İşçi Çıkış Bildirim Listesi (Ek-2)",
       .pencereBasligi = "İşçi Çıkış Bildirim Listesi (Ek-2)",
       .simge = "liste",
       .komutYardimi = "İki tarih arasında işten çıkanların bildirim listesini verir (EK-2)",
       .alanlar = {{Tarihler(), EsasIsAlani()}},
       .secim = Secenekleri(CikisListesiBelgesi),
       .liste = Listesi(),
       .kayitYok = ""},
      {.ekran = "dizipusu",
       .komut = "dizi-pusulasi",
       .menu = "Bildirgeler",
       .menuBasligi = "Dizi Pusulası",
       .pencereBasligi = "Dizi Pusulası",
       .simge = "tablo",
       .komutYardimi = "İki tarih arasında işe girenlerin bildirgelerine dizi pusulası verir",
       .alanlar = {{Tarihler()}},
       .secim = Secenekleri<TarihAraligi>(DiziPusulasiBelgesi),
       .kayitYok = ""},
  };
  return tablo;
}

}  // namespace

std::span<const BelgeTanimi> BildirimBelgeleri() {
  return Tablo();
}

}  // namespace belvani
