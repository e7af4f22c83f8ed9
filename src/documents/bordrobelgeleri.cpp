#include "documents/bordrobelgeleri.h"

#include "documents/agilistesi.h"
#include "documents/defterayari.h"
#include "documents/deftersorgu.h"
#include "documents/icmal.h"
#include "documents/izin.h"
#include "documents/ozelbordro.h"
#include "documents/pusula.h"
#include "documents/secimalanlari.h"

namespace belvani {
namespace {

// The custom payroll offers fewer lines, the usual one first.
constexpr std::string_view OzelSatirArasiAdlari[] = {"Hiç Biri", "Çizgi Çek"};
constexpr SatirArasi OzelSatirArasi[] = {SatirArasi::Hicbiri, SatirArasi::CizgiCek};

constexpr std::string_view SayfadaAdlari[] = {"1", "2", "4"};
constexpr SayfadaYaprak Sayfada[] = {SayfadaYaprak::Bir, SayfadaYaprak::Iki, SayfadaYaprak::Dort};

constexpr std::string_view IzinSozcukleri[] = {"icmal", "personel", "donem"};

constexpr MevzuatRakami AgiDamgasi{.ad = "A.G.İ. damga vergisi", .agiOdenmisse = true};

AlanGrubu DefterBicimi() {
  const auto satirArasi = [](auto& s) -> auto& {
    return s.duzen.satirArasi;
  };
  const auto kolonArasi = [](auto& s) -> auto& {
    return s.duzen.kolonArasi;
  };
  return {"Biçim",
          {YolAlani<DefterSecenek>("satirArasi", satirArasi, "Satırlar Arasında", {.liste = SatirArasiAdlari}),
           YolAlani<DefterSecenek>("kolonArasi", kolonArasi, "Kolonlar Arasında", {.liste = KolonArasiAdlari}),
           {Uye("icmal", &DefterSecenek::icmal), "Bordro Altında İcmal Olsun"},
           {Uye("herBordroYeni", &DefterSecenek::herBordroYeni), "Her Bordro Yeni Sayfaya Yazılsın"},
           SskSirasiAlani()},
          1};
}

// The switches of the columns, named by their heads.
AlanGrubu DefterKolonlari() {
  static const auto adlar = [] {
    std::array<std::string, DefterAnahtarSayisi> a;
    for (std::size_t i = 0; i < a.size(); ++i) a[i] = "kolon" + std::to_string(i + 1);
    return a;
  }();
  const auto basliklar = DefterAnahtarAdlari();
  AlanGrubu grup{"Kolonlar", {}, 2};
  for (std::size_t i = 0; i < adlar.size(); ++i)
    grup.alanlar.push_back(DiziAlani(adlar[i], &DefterSecenek::kolonlar, i, basliklar[i].c_str()));
  return grup;
}

void DefterKayitlari(const BelgeKaynagi& kaynak, BelgeSecimi& secim, const std::function<void(const Brd&)>& al) {
  DefterSatirlariniGez(kaynak.motor, *secim.Bul<DefterSecim>(), [&](const BordroSatiri& satir) { al(satir.brd); });
}

AlanGrubu OzelBordroBicimi() {
  const auto satirArasi = [](auto& s) -> auto& {
    return s.satirArasi;
  };
  return {"Biçim",
          {DegerlerdenAlan<SayfaDuzeni>("satirArasi", satirArasi, OzelSatirArasi, "Satırlar Arasında",
                                        {.liste = OzelSatirArasiAdlari}),
           {Uye("kolonArasi", &SayfaDuzeni::kolonArasi), "Sütunlar Arasında", {.liste = KolonArasiAdlari}}}};
}

AlanGrubu PusulaBicimi() {
  const auto sayfada = [](auto& s) -> auto& {
    return s.sayfada;
  };
  return {"Biçim",
          {DegerlerdenAlan<PusulaSecenegi>("sayfada", sayfada, Sayfada, "Bir Yaprakta",
                                           {.liste = SayfadaAdlari,
                                            .secenek = true,
                                            .ipucu = "Grafik yazıcıda bir yaprağa basılan pusula",
                                            .komut = "--sayfada",
                                            .komutYardimi = "PDF'in bir yaprağındaki pusula: 1, 2 veya 4",
                                            .komutSozcukleri = SayfadaAdlari})}};
}

AlanGrubu IzinRaporuAlanlari() {
  return {"Rapor",
          {{Uye("tip", &IzinSecenegi::tip),
            "Rapor Tipi",
            {.liste = IzinRaporAdlari,
             .komut = "--tip",
             .komutYardimi = "icmal, personel (kişilerin ayları) veya donem (yılın ayları)",
             .komutSozcukleri = IzinSozcukleri}},
           YilAlani("Yil", "bu yılın sonuna kadar")}};
}

const std::vector<BelgeTanimi>& Tablo() {
  static const std::vector<BelgeTanimi> tablo{
      {.ekran = "brdbas",
       .komut = "bordro",
       .menu = "Bordro",
       .menuBasligi = "Bordro Basımı",
       .pencereBasligi = "Bordro Basımı",
       .simge = "yazici",
       .komutYardimi = "Ayın ücret bordrosunu sonundaki icmaliyle verir (json: kayıtların bütün alanları)",
       .alanlar = {{DonemAlanlari("Bordro Yılı", "Bordro Ayı"), AralikAlanlari(true, "Sicil No"), DefterBicimi()},
                   {DefterKolonlari()}},
       .secim = Secenekleri(DefterBelgesi),
       .mevzuat = AgiDamgasi,
       .ayar = {.oku = DefterAyariniOku, .yaz = DefterAyariniYaz},
       .kayitlar = DefterKayitlari},
      {.ekran = "setbrd",
       .komut = "ozel-bordro",
       .menu = "Bordro",
       .menuBasligi = "Özel Bordro Basımı",
       .pencereBasligi = "Özel Bordro",
       .simge = "yazici",
       .komutYardimi = "Ayın özel bordrosunu verir: günlük brüt, yemek, yol",
       .alanlar = {{DonemAlanlari("Yıl", "Ay"), AralikAlanlari(false, "Personel Kodu"), OzelBordroBicimi()}},
       .secim = Secenekleri(OzelBordroBelgesi),
       .mevzuat = AgiDamgasi},
      {.ekran = "brdzarf",
       .komut = "pusula",
       .menu = "Bordro",
       .menuBasligi = "Ücret Pusulası",
       .pencereBasligi = "Ücret Pusulası",
       .simge = "kimlik",
       .komutYardimi = "Ayın ücret pusulalarını verir",
       .alanlar = {{DonemAlanlari("Bordro Yılı", "Bordro Ayı"), AralikAlanlari(true, "Sicil No"), PusulaBicimi()}},
       .secim = Secenekleri(UcretPusulalari),
       .mevzuat = AgiDamgasi},
      {.ekran = "brdicmal",
       .komut = "icmal",
       .menu = "Bordro",
       .menuBasligi = "Bordro Özeti",
       .pencereBasligi = "Bordro Özeti",
       .simge = "tablo",
       .komutYardimi = "Ayın bordro özetini verir",
       .alanlar = {{DonemAlanlari("Yıl", "Ay")}},
       .secim = Secenekleri(IcmalBelgesi),
       .mevzuat = {.ad = "asgari ücretli sayısı ve grafikteki A.G.İ. damga vergisi"}},
      {.ekran = "agibrd",
       .komut = "agi",
       .menu = "Bordro",
       .menuBasligi = "Asgari Geçim İndirimi Bordrosu",
       .pencereBasligi = "A.G.İ. Bordrosu",
       .simge = "oran",
       .komutYardimi = "Yılın başından aya kadar asgari geçim indirimi bordrosunu verir",
       .alanlar = {{DonemAlanlari("Bordro Yılı", "Bordro Ayı"), AralikAlanlari(true, "Sicil No")}},
       .secim = Secenekleri(AgiBelgesi),
       .mevzuat = {.ad = "Asgari Ücretin Yıllık Brüt Tutarı"}},
      {.ekran = "brdui",
       .komut = "izin",
       .menu = "Bordro",
       .menuBasligi = "Ücretli İzinler Bordrosu",
       .pencereBasligi = "Ücretli İzinler Raporu",
       .simge = "takvim",
       .komutYardimi = "Ücretli izinlerin listesini verir",
       .alanlar = {{IzinRaporuAlanlari(), KodAraligi("Personel Kodu")}},
       .secim = Secenekleri(IzinBelgesi),
       .kayitYok = ""},
  };
  return tablo;
}

}  // namespace

std::span<const BelgeTanimi> BordroBelgeleri() {
  return Tablo();
}

}  // namespace belvani
