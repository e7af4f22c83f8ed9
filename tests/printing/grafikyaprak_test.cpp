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
  belge.yapraklar = std::vector<Yaprak>(adet, {.altBaslik = "Ocak",
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

TEST(GrafikYapraklar, BreaksIntoPages) {
  const struct {
    const char* ad;
    SayfadaYaprak sayfada;
    std::size_t satir;
    Tutar tutar;
    std::size_t sayfa;  // of five slips
    bool okunur;
  } ornekler[] = {
      {"one", SayfadaYaprak::Bir, 22, Tutar(1841.26), 5, true},
      {"two", SayfadaYaprak::Iki, 22, Tutar(1841.26), 3, true},
      {"four", SayfadaYaprak::Dort, 22, Tutar(1841.26), 2, true},
      {"four with the longest amounts", SayfadaYaprak::Dort, 15, Tutar(900'000'000'000.0), 2, true},
      {"taller than a sheet", SayfadaYaprak::Bir, 200, Tutar(1.0), 5, false},
  };
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.ad);
    KayitTuvali tuval;
    const YaprakBelgesi fisler = Fisler(5, o.satir, o.tutar);
    const GrafikYapraklar sayfalar(fisler, o.sayfada);
    SayfalariCiz(sayfalar, tuval);
    EXPECT_EQ(std::size_t(sayfalar.SayfaSayisi()), tuval.sayfalar.size());
    EXPECT_EQ(tuval.sayfalar.size(), o.sayfa);
    EXPECT_EQ(sayfalar.Uyari().empty(), o.okunur);
    std::size_t fis = 0;
    for (const auto& sayfa : tuval.sayfalar) {
      const auto metinler = Metinler(sayfa);
      for (const auto& oge : metinler) {
        fis += oge.metin == "Aldım.";
        EXPECT_NEAR(oge.yazi.genislik, 1, 1e-6) << oge.metin;
        EXPECT_GE(oge.kutu.x, KenarMm - 1e-6);
        EXPECT_LE(oge.Sag(), 210 - KenarMm + 1e-6);
        EXPECT_LE(oge.Alt(), 297 - KenarMm + 1e-6);
        const bool yatayAsar = o.sayfada == SayfadaYaprak::Dort && oge.kutu.x < 105 && oge.Sag() > 105 - KenarMm;
        const bool dikeyAsar = o.sayfada != SayfadaYaprak::Bir && oge.kutu.y < 148 && oge.Alt() > 148.5;
        EXPECT_FALSE(yatayAsar || dikeyAsar) << oge.metin << ": over the line to cut along";
        for (const auto& diger : metinler) EXPECT_FALSE(UstUste(oge, diger)) << oge.metin << " " << diger.metin;
      }
    }
    EXPECT_EQ(fis, 5u);
  }
  EXPECT_EQ(GrafikYapraklar(YaprakBelgesi{}, SayfadaYaprak::Iki).SayfaSayisi(), 0);
}

TEST(GrafikYapraklar, LabelsHaveNoFill) {
  KayitTuvali tuval;
  const YaprakBelgesi fis = Fisler(1, 1, Tutar());
  SayfalariCiz(GrafikYapraklar(fis, SayfadaYaprak::Iki), tuval);
  std::vector<std::string> metinler;
  for (const auto& oge : Metinler(tuval.sayfalar[0])) metinler.push_back(oge.metin);
  EXPECT_THAT(metinler, testing::ElementsAre("FİŞ", "Ocak", "Adı", "Işıl", "Toplam Kazanç", "0.00", "Net", "0.00",
                                             "Katkı", "0.00", "Muaf", "0.00", "Borç", "0.00", "Aldım."));
}

}  // namespace
}  // namespace belvani
