#include "cli/giris.h"

#include <algorithm>

#include "cli/ortak.h"
#include "core/csv.h"
#include "core/tables/hucre.h"
#include "core/tables/uye.h"
#include "core/turkce.h"
#include "payroll/hesap/satirlar.h"

namespace belvani::cli {
namespace {

template <class Liste>
const AlanTanimi* KolonAra(const Liste& kolonlar, std::string_view ad) {
  for (const auto& kolon : kolonlar)
    if (kolon.ad == ad) return &kolon;
  return nullptr;
}

const AlanTanimi* OranTanimi(std::string_view ad) {
  for (const OranKolonu& oran : OranKolonlari)
    if (oran.kolon.ad == ad) return &oran.kolon;
  return nullptr;
}

// Without a value of their own people have what the tables and the month give; 0 would be one.
bool BosBirakilir(const AlanTanimi& alan) {
  return OranTanimi(alan.ad) != nullptr || alan.ad == brd::ucretsizizin.ad;
}

void HucreIsle(const AlanTanimi& alan, const std::string& metin, OndalikImi ondalik, GirisSatiri& giris,
               std::string& kusur) {
  if (BosBirakilir(alan) && Kirp(metin).empty()) return;
  const Deger deger = HucredenDeger(alan, metin, ondalik, kusur);
  if (alan.ad == brd::eksiksebebi.ad && kusur.empty() && EksikSebepSec(int(TamDegeri(deger))) < 0)
    kusur = "eksik gün sebebi listede yok";
  if (!kusur.empty()) return;
  Brd::HerKolon([&](const auto& kolon) {
    if (kolon.ad == alan.ad) UyeyeYaz(giris.deger.*kolon.uye, deger);
  });
  giris.verilen.insert(alan.ad);
}

}  // namespace

const AlanTanimi* GirisAlani(std::string_view ad) {
  static constexpr AlanTanimi digerleri[] = {brd::eksiksebebi, brd::ucretsizizin, brd::rapcalismadi, brd::borckes};
  for (const AlanTanimi* alan :
       {KolonAra(GunKolonlari, ad), KolonAra(MesaiKolonlari, ad), KolonAra(YardimKolonlari, ad), OranTanimi(ad)})
    if (alan != nullptr) return alan;
  return KolonAra(digerleri, ad);
}

std::vector<GirisSatiri> GirisListesiOku(const std::string& csv, const GirisDosyasi& dosya,
                                         const SorunListesi& sorunlar) {
  auto okunan = CsvOku(csv);
  if (!okunan) throw KomutHatasi{dosya.ad + ": " + okunan.KusurMetni()};
  Kusurlar kusurlar;
  const auto kusurYaz = [&](int satir, const std::string& kolon, const std::string& neden) {
    kusurlar.push_back({.metin = kolon + ": " + neden, .satir = satir});
  };
  const auto& basliklar = okunan->basliklar;
  if (std::find(basliklar.begin(), basliklar.end(), "kod") == basliklar.end())
    kusurYaz(1, "kod", "bu sütun dosyada olmalı");
  for (const auto& baslik : basliklar)
    if (baslik != "kod" && GirisAlani(baslik) == nullptr) kusurYaz(1, baslik, "giriş listesinde böyle bir alan olamaz");

  std::vector<GirisSatiri> girisler;
  for (const auto& satir : okunan->satirlar) {
    GirisSatiri giris;
    giris.satirNo = satir.satirNo;
    for (std::size_t i = 0; i < basliklar.size(); ++i) {
      std::string kusur;
      if (basliklar[i] == "kod")
        giris.kod = Kirp(satir.hucreler[i]);
      else if (const AlanTanimi* alan = GirisAlani(basliklar[i]))
        HucreIsle(*alan, satir.hucreler[i], dosya.ondalik, giris, kusur);
      if (!kusur.empty()) kusurYaz(satir.satirNo, basliklar[i], kusur);
    }
    if (giris.kod.empty()) kusurYaz(satir.satirNo, "kod", "boş bırakılamaz");
    girisler.push_back(std::move(giris));
  }
  sorunlar.SatirKusurlariylaBitir(dosya.ad + ": hiçbir bordro kaydedilmedi", kusurlar);
  return girisler;
}

}  // namespace belvani::cli
