#include "printing/sayfalayici.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include "printing/ornek.h"

namespace belvani {
namespace {

using test::Kalem;
using Tur = SayfaSatirTuru;

// A page head of five lines: title, one upper line, rule, one line of heads, rule.
Rapor SiraliRapor(const std::vector<int>& gruplar, std::size_t blokSatirlari) {
  const Kolonlar<Kalem> kolonlar{{"Tutar", 8, [](auto& k) { return k.tutar; }, KolonNiteligi::Toplanir}};
  std::vector<Kalem> kalemler;
  for (const int grup : gruplar) kalemler.push_back({.ad = "", .tutar = Tutar(1.0), .grup = grup});
  Rapor rapor = RaporYap(kolonlar, kalemler, 2, [](auto& a, auto& b) { return a.grup != b.grup; });
  rapor.ustSatirlar = {{.sol = "Dönem"}};
  rapor.sonBlok.assign(blokSatirlari, {"Toplam :", Tutar(1.0)});
  return rapor;
}
constexpr int BasSatirlari = 5;

std::vector<Sayfa> Bol(const Rapor& rapor, const SayfaDuzeni& duzen) {
  return SayfalaraBol(rapor, KagitBicimle(rapor, duzen), duzen);
}

std::size_t Say(const Sayfa& sayfa, Tur tur) {
  return std::size_t(
      std::count_if(sayfa.satirlar.begin(), sayfa.satirlar.end(), [&](auto& s) { return s.tur == tur; }));
}

struct SayfaOrnegi {
  const char* ad;
  std::vector<int> gruplar;  // of the rows; another group starts a page
  SayfaDuzeni duzen;
  std::size_t blok;
  std::vector<std::size_t> sayfadakiSatirlar;
};

TEST(Sayfalayici, BordersOfThePage) {
  const auto n = [](std::size_t adet) { return std::vector<int>(adet, 1); };
  const SayfaDuzeni bitisik{.satirSayisi = 66};
  const SayfaDuzeni cizgili{.satirSayisi = 66, .satirArasi = SatirArasi::CizgiCek};
  const std::vector<SayfaOrnegi> ornekler = {
      {"no row: the heads alone", {}, bitisik, 6, {0}},
      {"one row", n(1), bitisik, 6, {1}},
      {"one short of full", n(50), bitisik, 6, {50}},
      {"exactly full: the foot of the page is the total", n(51), bitisik, 6, {51}},
      {"one more", n(52), bitisik, 6, {51, 1}},
      {"two full pages", n(102), bitisik, 0, {51, 51}},
      {"separators count: full", n(26), cizgili, 6, {26}},
      {"separators count: one more", n(27), cizgili, 6, {26, 1}},
      {"a group starts a page", {1, 1, 2, 3, 3}, bitisik, 6, {2, 1, 2}},
      {"a group that starts behind a full page starts one page only",
       [] {
         std::vector<int> g(51, 1);
         g.push_back(2);
         return g;
       }(),
       bitisik,
       0,
       {51, 1}},
      {"the longest block that fits below a full page", n(51), bitisik, 6, {51}},
      {"a block that does not fit has its own page", n(51), bitisik, 7, {51, 0}},
      {"too few lines for anything: a row on each page", n(3), {.satirSayisi = 5}, 0, {1, 1, 1}},
      {"no lines at all", n(2), {.satirSayisi = 0}, 0, {1, 1}},
  };
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.ad);
    std::vector<std::size_t> bulunan;
    for (const auto& sayfa : Bol(SiraliRapor(o.gruplar, o.blok), o.duzen)) bulunan.push_back(Say(sayfa, Tur::Govde));
    EXPECT_EQ(bulunan, o.sayfadakiSatirlar);
  }
}

TEST(Sayfalayici, RowsOfThePage) {
  const auto sayfalar = Bol(SiraliRapor({1, 1, 2}, 1), {.satirSayisi = 66, .satirArasi = SatirArasi::BosSatir});
  ASSERT_EQ(sayfalar.size(), 2u);
  EXPECT_THAT(sayfalar[0].satirlar,
              testing::ElementsAre(SayfaSatiri{Tur::Baslik}, SayfaSatiri{Tur::UstSatir}, SayfaSatiri{Tur::Cizgi},
                                   SayfaSatiri{Tur::KolonBasligi, 1}, SayfaSatiri{Tur::Cizgi},
                                   SayfaSatiri{Tur::Govde, 0}, SayfaSatiri{Tur::Bos}, SayfaSatiri{Tur::Govde, 1},
                                   SayfaSatiri{Tur::Cizgi}, SayfaSatiri{Tur::Nakil, 2}, SayfaSatiri{Tur::Cizgi}));
  EXPECT_EQ(sayfalar[1].no, 2);
  EXPECT_THAT(std::vector(sayfalar[1].satirlar.begin() + BasSatirlari, sayfalar[1].satirlar.end()),
              testing::ElementsAre(SayfaSatiri{Tur::Govde, 2}, SayfaSatiri{Tur::Cizgi}, SayfaSatiri{Tur::Toplam, 3},
                                   SayfaSatiri{Tur::Cizgi}, SayfaSatiri{Tur::Blok, 0}));
}

// A paper with sums of its pages: each page has its own, the last one those of all below them.
TEST(Sayfalayici, SumsOfThePage) {
  Rapor rapor = SiraliRapor({1, 1, 2, 2, 2}, 0);
  rapor.sayfaToplamEtiketi = "SAYFA TOPLAMI";
  const auto sayfalar = Bol(rapor, {});
  ASSERT_EQ(sayfalar.size(), 2u);
  EXPECT_EQ(Say(sayfalar[0], Tur::SayfaToplami) + Say(sayfalar[1], Tur::SayfaToplami), 2u);
  EXPECT_EQ(Say(sayfalar[0], Tur::Nakil), 0u);
  EXPECT_EQ(Say(sayfalar[1], Tur::Toplam), 1u);
  EXPECT_EQ(rapor.SayfaToplami(sayfalar[0].ilkKayit, 2)[0], Hucre(Tutar(2.0)));
  EXPECT_EQ(rapor.SayfaToplami(sayfalar[1].ilkKayit, 5)[0], Hucre(Tutar(3.0)));
  rapor = SiraliRapor({1, 1}, 0);
  rapor.sayfaToplamEtiketi = "SAYFA TOPLAMI";
  EXPECT_EQ(Say(Bol(rapor, {})[0], Tur::SayfaToplami), 0u) << "on a single page they are those of the paper";
}

// Rows that are signed are higher than a line.
TEST(Sayfalayici, HighRows) {
  const Rapor rapor = SiraliRapor(std::vector<int>(40, 1), 6);
  KagitBicimi bicim = KagitBicimle(rapor, {});
  bicim.satirBoyu = 3;
  int govde = 0;
  for (const Sayfa& sayfa : SayfalaraBol(rapor, bicim, {.satirSayisi = 66})) {
    EXPECT_LT(SayfaBoyu(sayfa, bicim), 66);
    govde += int(Say(sayfa, Tur::Govde));
  }
  EXPECT_EQ(govde, 40);
}

RC_GTEST_PROP(Sayfalayici, HicbirSatirKaybolmaz, ()) {
  const auto gruplar = *rc::gen::container<std::vector<int>>(rc::gen::weightedElement<int>({{30, 1}, {1, 2}}));
  const SayfaDuzeni duzen{
      .satirSayisi = *rc::gen::element(22, 33, 44, 66, 70),
      .satirArasi = *rc::gen::element(SatirArasi::CizgiCek, SatirArasi::BosSatir, SatirArasi::Hicbiri)};
  const Rapor rapor = SiraliRapor(gruplar, *rc::gen::inRange<std::size_t>(0, 12));
  std::size_t govde = 0;
  std::size_t blok = 0;
  int no = 0;
  for (const auto& sayfa : Bol(rapor, duzen)) {
    RC_ASSERT(sayfa.no == ++no);
    RC_ASSERT(int(sayfa.satirlar.size()) < duzen.satirSayisi);
    bool ilk = true;
    for (const auto& [tur, sira] : sayfa.satirlar) {
      if (tur == Tur::Govde) {
        RC_ASSERT(sira == govde++);
        RC_ASSERT(ilk || !rapor.Satirlar()[sira].yeniSayfa);
        ilk = false;
      }
      if (tur == Tur::Nakil) RC_ASSERT(sira == govde && govde < gruplar.size());
      if (tur == Tur::Toplam) RC_ASSERT(sira == gruplar.size());
      if (tur == Tur::Blok) RC_ASSERT(sira == blok++);
    }
  }
  RC_ASSERT(govde == gruplar.size());
  RC_ASSERT(blok == (gruplar.empty() ? 0 : rapor.sonBlok.size()));
}

}  // namespace
}  // namespace belvani
