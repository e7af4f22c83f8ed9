// Borders of pages: how many people stand on each page for every number of lines, every space between rows and every
// size of letters that their user may choose. A line for each choice, a number for each page: "Hicbiri 30: 11 11 4".
#pragma once

#include "altin/cizimkagitlari.h"

namespace belvani::test {

// Of each page, how often `parca` stands at the beginning of a line.
inline std::string SayfaBasinaSatir(const std::string& metin, const std::function<bool(const std::string&)>& sayilir) {
  std::string sayilar;
  for (const auto& sayfa : Bol(metin, "\f")) {
    const auto satirlar = Bol(sayfa, "\n");
    sayilar += " " + std::to_string(std::ranges::count_if(satirlar, sayilir));
  }
  return sayilar;
}

inline bool KisiSatiri(const std::string& satir) {
  return satir.size() > 3 && std::all_of(satir.begin(), satir.begin() + 3, [](char c) { return c >= '0' && c <= '9'; });
}

inline std::string DefterSayfalari(OrnekSirket& o) {
  std::string metin;
  for (const auto& [ad, ara] : {std::pair{"CizgiCek", SatirArasi::CizgiCek},
                                std::pair{"BosSatir", SatirArasi::BosSatir}, std::pair{"Hicbiri", SatirArasi::Hicbiri}})
    for (int satir = 22; satir <= 70; ++satir) {
      DefterSecenek secenek;
      secenek.duzen.satirSayisi = satir;
      secenek.duzen.satirArasi = ara;
      const auto belge = DefterBelgesi(o.Kaynak(), o.Secim("", "ZZZZ"), secenek, {});
      metin +=
          std::string(ad) + " " + std::to_string(satir) + ":" + SayfaBasinaSatir(belge->Metin(), KisiSatiri) + "\n";
    }
  return metin;
}

inline std::string PusulaSayfalari(OrnekSirket& o) {
  const auto belge = UcretPusulalari(o.Kaynak(), o.Secim("009", "014"), {});
  const auto bas = [](const std::string& satir) { return satir.find("PUSULASI") != std::string::npos; };
  std::string metin;
  for (int satir = 22; satir <= 90; ++satir) {
    YzcAyarlari ayar = belge->Ayar();
    ayar.YzcSatir = satir;
    belge->Ayarla(ayar);
    metin += std::to_string(satir) + ":" + SayfaBasinaSatir(belge->Metin(), bas) + "\n";
  }
  return metin;
}

// Drawn: the words of each page.
inline std::string PuntoSayfalari(OrnekSirket& o) {
  std::string metin;
  for (int punto = 6; punto <= 13; ++punto) {
    KayitTuvali tuval;
    const auto belge = DefterBelgesi(o.Kaynak(), o.Secim("", "ZZZZ"), BuyukDefter(), {.punto = punto});
    SayfalariCiz(*belge->Cizim(), tuval);
    metin += std::to_string(punto) + ":";
    for (const auto& sayfa : tuval.sayfalar) metin += " " + std::to_string(sayfa.Say(OgeTuru::Metin));
    metin += "\n";
  }
  return metin;
}

inline Kagitlar YerlesimKagitlari() {
  return {{SonAy, "bordro-sayfalar.txt", DefterSayfalari},
          {SonAy, "pusula-sayfalar.txt", PusulaSayfalari},
          {SonAy, "punto-sayfalar.txt", PuntoSayfalari}};
}

}  // namespace belvani::test
