#include "deductions/ogibelgeleri.h"

#include "deductions/ogilistesi.h"
#include "documents/secimalanlari.h"

namespace belvani {
namespace {

constexpr std::string_view Menu = "Ek Moduller/Özel Gider İndirimi";
constexpr std::string_view KayitYok = "Listelenecek Kayıt Bulunamadı";

constexpr std::string_view TurAdlari[] = {"Çalışan", "Ölen,Emekli,Çıkan"};
constexpr std::string_view TurSozcukleri[] = {"calisan", "ayrilan"};
constexpr std::string_view UrunAdlari[] = {"Bordro", "Ödeme Listesi"};
constexpr std::string_view UrunSozcukleri[] = {"bordro", "odeme"};

std::vector<Alan> KomutAlanlari() {
  return {{Uye("tur", &OgiBordroSecimi::tur),
           "Kimler",
           {.liste = TurAdlari,
            .komut = "--tur",
            .komutYardimi = "calisan ya da ayrilan (ayın ilk gününden önce ayrılanlar)",
            .komutSozcukleri = TurSozcukleri}},
          {Uye("urun", &OgiBordroSecimi::urun),
           "Liste",
           {.liste = UrunAdlari,
            .komut = "--urun",
            .komutYardimi = "bordro ya da odeme (ayın ödeme listesi)",
            .komutSozcukleri = UrunSozcukleri}}};
}

AlanGrubu Bicim() {
  return {"Biçim",
          {{Uye("satirArasi", &SayfaDuzeni::satirArasi), "Satırlar Arasında", {.liste = SatirArasiAdlari}},
           {Uye("kolonArasi", &SayfaDuzeni::kolonArasi), "Kolonlar Arasında", {.liste = KolonArasiAdlari}},
           SskSirasiAlani()}};
}

AlanSutunlari BordroAlanlari() {
  return {{DonemAlanlari("Bordro Yılı", "Bordro Ayı"), AralikAlanlari(true, "Sicil No"), Bicim()}};
}

// Fresh choices of one kind of people.
SecimYapan BordroSecimi(OgiTuru tur) {
  return [tur] {
    auto secim = Secenekleri(OgiBordroBelgesi)();
    secim->Bul<OgiBordroSecimi>()->tur = tur;
    return secim;
  };
}

void OdemeSec(BelgeSecimi& secim) {
  secim.Bul<OgiBordroSecimi>()->urun = OgiUrunu::OdemeListesi;
}

const std::vector<BelgeTanimi>& Tablo() {
  static const std::vector<BelgeTanimi> tablo{
      {.ekran = "ogibrd",
       .komut = "ogi-bordro",
       .menu = Menu,
       .menuBasligi = "ÖGİ Çalışan Bordrosu",
       .pencereBasligi = "Özel Gider İndirimi Bordrosu (Çalışan)",
       .simge = "bordro",
       .komutYardimi = "Ayın özel gider indirimi bordrosunu ya da ödeme listesini verir",
       .alanlar = BordroAlanlari(),
       .secim = BordroSecimi(OgiTuru::Calisan),
       .komutAlanlari = KomutAlanlari(),
       .girisler = {{"ogibrdode", "odeme", "ÖGİ Çalışan Ödeme Listesi", "Özel Gider İndirimi Ödeme Listesi (Çalışan)",
                     OdemeSec}},
       .soz = OgiListeSozu,
       .kayitYok = KayitYok},
      {.ekran = "ogibrd2",
       .komut = "",
       .menu = Menu,
       .menuBasligi = "ÖGİ Ölen,Emekli,Çıkan Bordrosu",
       .pencereBasligi = "Özel Gider İndirimi Bordrosu (Ölen,Emekli,Çıkan)",
       .simge = "bordro",
       .komutYardimi = "Ayın ilk gününden önce ayrılanların özel gider indirimi bordrosu",
       .alanlar = BordroAlanlari(),
       .secim = BordroSecimi(OgiTuru::Ayrilan),
       .girisler = {{"ogibrd2ode", "odeme", "ÖGİ Ölen,Emekli,Çıkan Ödeme Listesi",
                     "Özel Gider İndirimi Ödeme Listesi (Ölen,Emekli,Çıkan)", OdemeSec}},
       .soz = OgiListeSozu,
       .kayitYok = KayitYok},
      {.ekran = "topode",
       .komut = "ogi-kalan",
       .menu = Menu,
       .menuBasligi = "ÖGİ Toplam Kalan İade Listesi",
       .pencereBasligi = "ÖGİ Toplam Ödenen Kalan Listesi",
       .simge = "liste",
       .komutYardimi = "Özel gider indiriminin kişi kişi iade, ödenen ve kalan tutarlarını verir",
       .alanlar = {{{"Liste", {YilAlani("ÖGİ Yılı", "iadenin ödendiği yıl; harcamalar bir önceki yılındır")}}}},
       .secim = Secenekleri(OgiKalanBelgesi),
       .liste = {.komut = " Listele"},
       .soz = OgiAgiSozu,
       .kayitYok = KayitYok},
      {.ekran = "ogiaymah",
       .komut = "ogi-mahsup",
       .menu = Menu,
       .menuBasligi = "ÖGİ Aylık Mahsup Listesi",
       .pencereBasligi = "Özel Gider İndirimi Aylık Mahsup İcmali",
       .simge = "takvim",
       .komutYardimi = "Özel gider indiriminin aylık mahsup icmalini verir",
       .alanlar = {{{"Dönem", {YilAlani("Bordro Yılı")}}, AralikAlanlari(false, "Sicil No")}},
       .secim = Secenekleri(OgiMahsupBelgesi),
       .soz = OgiListeSozu,
       .kayitYok = KayitYok},
  };
  return tablo;
}

}  // namespace

std::span<const BelgeTanimi> OgiBelgeleri() {
  return Tablo();
}

}  // namespace belvani
