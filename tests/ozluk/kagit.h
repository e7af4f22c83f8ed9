// Papers as their tests look at them: lines and letters of a text, values and places of a drawn page.
#pragma once

#include <gtest/gtest.h>

#include "core/turkce.h"
#include "printing/form/formsayfasi.h"
#include "printing/kayittuvali.h"

namespace belvani::test {

// Lines of a text as letters.
inline std::vector<std::vector<std::string>> Harfler(std::string_view metin) {
  std::vector<std::vector<std::string>> satirlar(1);
  for (std::string_view harf; !metin.empty(); metin.remove_prefix(harf.size())) {
    harf = IlkHarfler(metin, 1);
    harf == "\n" ? (void)satirlar.emplace_back() : (void)satirlar.back().emplace_back(harf);
  }
  satirlar.pop_back();
  return satirlar;
}

inline std::vector<std::string> Satirlar(std::string_view metin) {
  std::vector<std::string> satirlar;
  for (const auto& harfler : Harfler(metin)) {
    satirlar.emplace_back();
    for (const auto& harf : harfler) satirlar.back() += harf;
  }
  return satirlar;
}

// A text of exactly `boy` letters, another one each time.
inline std::string Doldur(int boy) {
  static int sayac = 0;
  std::string metin = "Ş" + std::to_string(++sayac);
  while (int(HarfSayisi(metin)) < boy) metin += "ğ";
  return std::string(IlkHarfler(metin, std::size_t(boy)));
}

template <class Kayit>
Kayit DoluKayit() {
  Kayit kayit;
  Kayit::HerKolon([&](const auto& kolon) {
    if constexpr (std::is_same_v<std::decay_t<decltype(kayit.*kolon.uye)>, std::string>)
      kayit.*kolon.uye = Doldur(kolon.boyut);
  });
  return kayit;
}

inline const FormAlani& Alan(const FormSayfasi& sayfa, std::string_view ad) {
  const auto yer = std::ranges::find(sayfa.alanlar, ad, &FormAlani::ad);
  if (yer == sayfa.alanlar.end()) throw std::out_of_range(std::string(ad));
  return *yer;
}

inline bool Icinde(const Dikdortgen& ic, const Dikdortgen& dis) {
  constexpr double pay = 1e-6;
  return ic.x >= dis.x - pay && ic.y >= dis.y - pay && ic.x + ic.en <= dis.x + dis.en + pay &&
         ic.y + ic.boy <= dis.y + dis.boy + pay;
}

// Everything lies inside the printable sheet, no two values on each other; a mark box lies over no words.
inline void SayfayiDenetle(const FormSayfasi& sayfa) {
  KayitTuvali tuval;
  FormCiz(sayfa, tuval);
  for (const auto& oge : tuval.sayfalar.at(0).ogeler) {
    EXPECT_TRUE(Icinde(oge.kutu, {KenarMm, KenarMm, 210 - 2 * KenarMm, 297 - 2 * KenarMm})) << oge.metin;
    EXPECT_GT(oge.yazi.genislik, 0.4) << oge.metin;
  }
  const auto ayri = [](const Dikdortgen& a, const Dikdortgen& b) {
    return a.x + a.en <= b.x + 1e-6 || b.x + b.en <= a.x + 1e-6 || a.y + a.boy <= b.y + 1e-6 ||
           b.y + b.boy <= a.y + 1e-6;
  };
  for (std::size_t i = 0; i < sayfa.alanlar.size(); ++i) {
    const auto& a = sayfa.alanlar[i];
    for (std::size_t k = 0; k < i; ++k) EXPECT_TRUE(ayri(a.yer, sayfa.alanlar[k].yer)) << a.ad;
    for (const auto& y : sayfa.yazilar) EXPECT_TRUE(ayri(a.yer, y.yer)) << a.ad << " " << y.metin;
  }
}

}  // namespace belvani::test
