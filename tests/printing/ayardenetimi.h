// Holds a paper against what it says of the print settings: one that it honours changes its pages or its text, any
// other changes neither.
#pragma once

#include <gtest/gtest.h>

#include "printing/belge.h"
#include "printing/kayittuvali.h"

namespace belvani::test {

// All that settings may change: the drawn pages with their sheets, and the text with its pages.
inline std::string BelgeGorunumu(Belge& belge, YzcAyarlari ayar) {
  std::string gorunum;
  for (const bool dos : {false, true}) {
    ayar.YzcDosMod = dos;
    belge.Ayarla(ayar);
    KayitTuvali tuval;
    SayfalariCiz(*BelgeSayfalari(belge), tuval);
    for (const auto& sayfa : tuval.sayfalar) {
      gorunum += std::to_string(sayfa.boy.en) + "x" + std::to_string(sayfa.boy.boy) + "\n";
      for (const auto& satir : sayfa.Satirlar()) gorunum += satir + "\n";
    }
    gorunum += belge.Metin();
  }
  return gorunum;
}

inline void AyarlariDenetle(Belge& belge) {
  const struct {
    const char* ad;
    bool YzcDestegi::*destek;
    void (*degistir)(YzcAyarlari&);
  } ayarlar[] = {
      {"title", &YzcDestegi::baslik, [](YzcAyarlari& a) { a.YzcBaslikYaz = !a.YzcBaslikYaz; }},
      {"day", &YzcDestegi::tarih, [](YzcAyarlari& a) { a.YzcTarihYaz = !a.YzcTarihYaz; }},
      {"page number", &YzcDestegi::sayfaNo, [](YzcAyarlari& a) { a.YzcSayfaNoYaz = !a.YzcSayfaNoYaz; }},
      {"company", &YzcDestegi::sirket, [](YzcAyarlari& a) { a.YzcSirketYaz = !a.YzcSirketYaz; }},
      {"orientation", &YzcDestegi::yon,
       [](YzcAyarlari& a) { a.YzcYon = a.YzcYon == KagitYonu::Dikey ? KagitYonu::Yatay : KagitYonu::Dikey; }},
      {"lines", &YzcDestegi::satir, [](YzcAyarlari& a) { a.YzcSatir = 33; }},
  };
  const YzcAyarlari ilk = belge.Ayar();
  const std::string once = BelgeGorunumu(belge, ilk);
  ASSERT_FALSE(once.empty());
  for (const auto& [ad, destek, degistir] : ayarlar) {
    YzcAyarlari ayar = ilk;
    degistir(ayar);
    EXPECT_EQ(BelgeGorunumu(belge, ayar) != once, belge.Destek().*destek) << ad;
  }
  EXPECT_EQ(BelgeGorunumu(belge, ilk), once) << "the settings put back";
}

}  // namespace belvani::test
