// Slips on pages: whole ones, inside the sheet, nothing over anything else.
#include "printing/grafikyaprak.h"

#include <gmock/gmock.h>

#include "printing/kayittuvali.h"

namespace belvani {
namespace {

using test::KayitSayfasi;
using test::KayitTuvali;
using test::Oge;
using test::OgeTuru;

YaprakBelgesi Fisler(std::size_t adet, std::size_t satir, Tutar tutar) {
  YaprakBelgesi belge{.baslik = "FİŞ", .yapraklar = {}};
  const std::vector<BlokSatiri> blok(satir, {"Toplam Kazanç  *** :", tutar});
  belge.yapraklar.assign(adet, {.altBaslik = "Ocak",
                                .bas = {{"Adı :", std::string("Işıl")}},
                                .sol = blok,
                                .sag = {{"Net :", tutar}},
                                .ek = {{"Katkı :", tutar}, {"Muaf :", tutar}, {"Borç :", tutar}},
                                .cumleler = {"Aldım."}});
  return belge;
}

std::vector<Oge> Metinler(const KayitSayfasi& sayfa) {
  std::vector<Oge> metinler;
  std::ranges::copy_if(sayfa.ogeler, std::back_inserter(metinler), [](auto& o) { return o.tur == OgeTuru::Metin; });
  return metinler;
}

// Whether `sagdaki` begins before its left neighbour of the same line has ended.
bool UstUste(const Oge& soldaki, const Oge& sagdaki) {
  return std::abs(soldaki.kutu.y - sagdaki.kutu.y) < 0.1 && soldaki.kutu.x < sagdaki.kutu.x &&
         soldaki.Sag() > sagdaki.kutu.x;
}

TEST(GrafikYapraklari, TamYapraklarKagidaSigar) {
  const struct {
    const char* ad;
    std::size_t satir;
    Tutar tutar;
    std::size_t sayfa;  // of seven slips
    bool okunur;
  } ornekler[] = {
      {"as many lines as fit three times", 22, Tutar(1841.26), 3, true},
      {"one line more", 23, Tutar(1841.26), 4, true},
      {"the longest amounts", 15, Tutar(900'000'000'000'000.0), 2, true},
      {"taller than a sheet", 200, Tutar(1.0), 7, false},
  };
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.ad);
    KayitTuvali tuval;
    const auto sonuc = GrafikYapraklari(Fisler(7, o.satir, o.tutar), tuval);
    EXPECT_EQ(std::size_t(sonuc.sayfaSayisi), tuval.sayfalar.size());
    EXPECT_EQ(tuval.sayfalar.size(), o.sayfa);
    EXPECT_EQ(sonuc.uyari.empty(), o.okunur);
    for (const auto& sayfa : tuval.sayfalar) {
      EXPECT_EQ(sayfa.Satirlar().front(), "FİŞ");
      EXPECT_EQ(sayfa.Satirlar().back(), "Aldım.");
      double sag = 0;
      for (const auto& oge : Metinler(sayfa)) {
        EXPECT_NEAR(oge.yazi.genislik, 1, 1e-6) << oge.metin;
        EXPECT_GE(oge.kutu.x, KenarMm - 1e-6);
        EXPECT_LE(oge.Sag(), 210 - KenarMm + 1e-6);
        EXPECT_LE(oge.Alt(), 297 - KenarMm + 1e-6);
        sag = std::max(sag, oge.Sag());
        for (const auto& diger : Metinler(sayfa)) EXPECT_FALSE(UstUste(oge, diger)) << oge.metin << " " << diger.metin;
      }
      EXPECT_NEAR(sag, 210 - KenarMm, 1e-6) << "the blocks take the whole width";
    }
  }
  KayitTuvali bos;
  EXPECT_EQ(GrafikYapraklari({}, bos).sayfaSayisi, 0);
  EXPECT_TRUE(bos.sayfalar.empty());
}

TEST(GrafikYapraklari, EtiketlerDolgusuz) {
  KayitTuvali tuval;
  GrafikYapraklari(Fisler(1, 1, Tutar()), tuval);
  std::vector<std::string> metinler;
  for (const auto& oge : Metinler(tuval.sayfalar[0])) metinler.push_back(oge.metin);
  EXPECT_THAT(metinler, testing::ElementsAre("FİŞ", "Ocak", "Adı", "Işıl", "Toplam Kazanç", "0.00", "Net", "0.00",
                                             "Katkı", "0.00", "Muaf", "0.00", "Borç", "0.00", "Aldım."));
}

}  // namespace
}  // namespace belvani
