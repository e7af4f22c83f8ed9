// The personal-expense refund by both years' rules, at the borders told by the rule and against a second telling of it.
#include "payroll/hesap/ozelgider.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "payroll/hesap/kahin.h"

namespace belvani {
namespace {

const Yuvarlayici kurusa(2);

GvTablosu OranTablosu(std::initializer_list<std::pair<double, double>> dilimler) {
  GvTablosu tablo;
  std::size_t i = 0;
  for (const auto& [limit, oran] : dilimler) {
    tablo.GvLimit[i] = Tutar(limit);
    tablo.GvOran[i++] = Tek(oran);
  }
  return tablo;
}

const GvTablosu gelirVergisi = OranTablosu({{5000, 15}, {12000, 20}, {1e9, 25}});
const GvTablosu ozel2004 = OranTablosu({{3000, 8}, {6000, 6}, {1e9, 4}});

Tutar Hakedis(const GvTablosu& tablo, int yil, double matrah, double vergi, double harcama, double oran = 35) {
  return OzelGiderHesapla(tablo, Tek(oran), {yil, Tutar(matrah), Tutar(vergi), Tutar(harcama)}, kurusa).ogitutar;
}

TEST(OzelGider, TheTableAtItsBorders) {
  const auto vergi = [](const GvTablosu& tablo, double matrah) { return OzelGvHesapla(tablo, Tutar(matrah), kurusa); };
  EXPECT_EQ(vergi(ozel2004, 3000), Tutar(240));
  EXPECT_EQ(vergi(ozel2004, 3000.01), Tutar(240));
  EXPECT_EQ(vergi(ozel2004, 7500), Tutar(240 + 180 + 60));
  EXPECT_EQ(vergi(ozel2004, 0), Tutar());
  EXPECT_EQ(vergi(ozel2004, -100), Tutar());
  // Rows of zero stand aside and leave the lower limit alone; above the last limit nothing is taken.
  const GvTablosu delik = OranTablosu({{0, 99}, {3000, 8}, {0, 50}, {0, 0}, {6000, 6}});
  EXPECT_EQ(vergi(delik, 5000), Tutar(240 + 120));
  EXPECT_EQ(vergi(delik, 9000), Tutar(240 + 180));
  // Each bracket is money-rounded: 33.335 -> 33.34 and 0.205 -> 0.21 (with their bias), where the sum would give 33.54.
  EXPECT_EQ(vergi(OranTablosu({{333.35, 10}, {1000, 10}}), 335.4), Tutar(33.34) + Tutar(0.21));
  EXPECT_TRUE(OzelGvTablosuBos({}));
  EXPECT_TRUE(OzelGvTablosuBos(OranTablosu({{0, 15}})));
  EXPECT_FALSE(OzelGvTablosuBos(delik));
}

TEST(OzelGider, TheYearsDifferForTheSameNumbers) {
  EXPECT_EQ(Hakedis(gelirVergisi, 2003, 12000, 2150, 3000), Tutar(200));
  EXPECT_EQ(Hakedis(gelirVergisi, 2004, 12000, 2150, 3000), Tutar(450)) << "the table on the expense itself";
  EXPECT_EQ(Hakedis(ozel2004, 2004, 12000, 2150, 3000), Tutar(240));
}

TEST(OzelGider, UntilTheYear2003) {
  // A third of 30,000 is above 35 % of the base: 4,200 count.
  EXPECT_EQ(Hakedis(gelirVergisi, 2003, 12000, 2150, 30000), Tutar(2150 - 750 - 560));
  EXPECT_EQ(Hakedis(gelirVergisi, 2003, 12000, 2150, 12600), Tutar(2150 - 750 - 560)) << "both ways the same";
  EXPECT_EQ(Hakedis(gelirVergisi, 2003, 12000, 100, 0), Tutar(100 - 2150)) << "nothing is cut at zero";
  EXPECT_EQ(Hakedis({}, 2003, 12000, 2150, 0), Tutar(2150)) << "an empty table gives the whole tax back";
  // Old lira stays as it is.
  const GvTablosu eski = OranTablosu({{5e9, 15}, {12e9, 20}});
  EXPECT_EQ(Hakedis(eski, 2003, 12e9, 2.15e9, 3e9), Tutar(200e6));
}

TEST(OzelGider, FromTheYear2004On) {
  EXPECT_EQ(Hakedis(ozel2004, 2004, 2500, 375, 3000), Tutar(200)) << "an expense above the base counts as the base";
  EXPECT_EQ(Hakedis(ozel2004, 2006, 2500, 0, 2500), Tutar(200)) << "the tax that was paid does not count";
  // Books in old lira: both amounts come down to new lira, each for itself.
  EXPECT_EQ(Hakedis(ozel2004, 2004, 2.5e9, 0, 3e9), Tutar(200));
  EXPECT_EQ(Hakedis(ozel2004, 2004, 12000, 0, 3e9), Tutar(240));
  EXPECT_EQ(Hakedis(ozel2004, 2004, 12000, 0, 0), Tutar());
}

// The rule told again, in whole kuruş and with brackets as differences of sums. A difference of amounts is an amount:
// what doubles lose in it would decide a kuruş at a half.
double IkinciAnlatim(const GvTablosu& tablo, double oran, int yil, double matrah, double vergi, double harcama) {
  const auto y = [](double d) { return std::nearbyint((d + 0.00005) * 100) / 100; };
  const auto vergisi = [&](double m) {
    double toplam = 0, alt = 0;
    for (std::size_t i = 0; i < 8; ++i) {
      const double ust = tablo.GvLimit[i].Sayi();
      if (ust == 0) continue;
      if (m > alt) toplam += y(test::Para(m >= ust ? ust - alt : m - alt) * tablo.GvOran[i].Sayi() / 100);
      alt = ust;
    }
    return toplam;
  };
  if (yil >= 2004) return y(vergisi(harcama > matrah ? matrah : harcama));
  const double p = y(matrah * oran / 100), c = y(harcama / 3);
  return vergi - y(vergisi(y(test::Para(matrah - (p > c ? c : p)))));
}

RC_GTEST_PROP(OzelGider, AgreesWithASecondTelling, ()) {
  const auto kurusla = [](int enCok) { return double(*rc::gen::inRange(0, enCok)) / 100; };
  GvTablosu tablo;
  double limit = 0;
  for (std::size_t i = 0; i < 8; ++i)
    if (*rc::gen::inRange(0, 4) != 0) {
      tablo.GvLimit[i] = Tutar(limit += 1 + kurusla(500'000));
      tablo.GvOran[i] = Tek(*rc::gen::inRange(0, 400) / 10.0);
    }
  const int yil = *rc::gen::inRange(2002, 2007);
  const double matrah = kurusla(3'000'000), vergi = kurusla(600'000), harcama = kurusla(3'000'000);
  const double oran = *rc::gen::inRange(0, 101);
  const Tutar beklenen(IkinciAnlatim(tablo, oran, yil, matrah, vergi, harcama));
  RC_ASSERT(Hakedis(tablo, yil, matrah, vergi, harcama, oran) == beklenen);
}

}  // namespace
}  // namespace belvani
