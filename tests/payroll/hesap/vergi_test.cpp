// Income tax over brackets, and the gross of an agreed net.
#include "payroll/hesap/vergi.h"

#include "core/sinamalar.h"
#include "kahin.h"
#include "ornek.h"
#include "payroll/hesap/damga.h"
#include "payroll/hesap/netbrut.h"

namespace belvani {
namespace {

using test::CokDene;
using test::KahinNet;
using test::Sinamalar;

GvTablosu Dilimler(std::initializer_list<std::pair<double, double>> satirlar) {
  GvTablosu t;
  std::size_t i = 0;
  for (const auto& [limit, oran] : satirlar) {
    t.GvLimit[i] = Tutar(limit);
    t.GvOran[i++] = Tek(oran);
  }
  return t;
}

TEST(GvHesapla, BracketsOfTheYear) {
  const GvTablosu iki = Dilimler({{10000, 15}, {25000, 20}});
  const GvTablosu bosluklu = Dilimler({{0, 90}, {10000, 15}, {0, 90}, {-5, 90}, {25000, 20}, {0, 90}, {50000, 27}});
  const Sinamalar<GvTablosu, double, double, double> durumlar{
      {iki, 9000, 2000, 350},        // 1,000 × 15 % + 1,000 × 20 %
      {iki, 9000, 1000, 150},        // up to the limit: only the lower rate
      {iki, 9999.99, 0.02, 0.0035},  // 0.01 × 15 % + 0.01 × 20 %
      {iki, 10000, 1, 0.2},          // carried base on the limit: only the upper rate
      {iki, 0, 25000, 4500},         // 1,500 + 3,000
      {iki, 24000, 2000, 200},       // 1,000 above the last limit are free
      {iki, 25000, 1000, 0},
      {iki, 0, 0, 0},
      {iki, 0, -100, -15},
      {bosluklu, 9000, 20000, 4230},  // 150 + 3,000 + 4,000 × 27 %
      {Dilimler({}), 5000, 5000, 0},
      {Dilimler({{10000, 7.5}}), 0, 33.3333, 2.5},          // 2.4999975
      {Dilimler({{0.03, 0.15}, {9, 7}}), 0, 0.05, 0.0014},  // 0.000045 counts as 0, then 0.0014
  };
  for (const auto& [tablo, devreden, matrah, vergi] : durumlar)
    EXPECT_EQ(GvHesapla(tablo, Tutar(devreden), Tutar(matrah)), Tutar(vergi)) << devreden << " + " << matrah;
  EXPECT_EQ(VergiBul(bosluklu, Tutar(29000)), Tutar(1500 + 3000 + 1080));
}

// One kuruş at a time: at whole percents each bears a whole number of ten-thousandths.
TEST(GvHesapla, AgreesKurusByKurus) {
  CokDene(300, [] {
    GvTablosu tablo;
    std::array<int, 8> limitler{};
    int limit = 0;
    for (std::size_t i = 0; i < 8; ++i) {
      const int ek = *rc::gen::inRange(-300, 700);
      if (ek > 0) limitler[i] = limit += ek;
      tablo.GvLimit[i] = Tutar::Hamdan(limitler[i] * 100);
      tablo.GvOran[i] = Tek(*rc::gen::inRange(0, 60));
    }
    const int devreden = *rc::gen::inRange(0, 4000);
    const int matrah = *rc::gen::inRange(0, 4000);
    std::int64_t vergi = 0;
    for (int para = devreden; para < devreden + matrah; ++para)
      for (std::size_t i = 0; i < 8; ++i)
        if (limitler[i] > para) {
          vergi += std::int64_t(tablo.GvOran[i].Sayi());
          break;
        }
    RC_ASSERT(GvHesapla(tablo, Tutar::Hamdan(devreden * 100), Tutar::Hamdan(matrah * 100)).Ham() == vergi);
  });
}

TEST(DamgaVergisi, PerThousandNeverNegative) {
  const Sinamalar<double, double, double> durumlar{{693, 6, 4.16},  {0, 6, 0},        {-693, 6, 0}, {0.82, 6, 0},
                                                   {0.83, 6, 0.01}, {1000, 7.5, 7.5}, {1000, 0, 0}};
  for (const auto& [matrah, binde, vergi] : durumlar)
    EXPECT_EQ(DamgaVergisi(Tutar(matrah), Tek(binde), Yuvarlayici(2)), Tutar(vergi)) << matrah;
}

const GvTablosu yil2009 = Dilimler({{8700, 15}, {22000, 20}, {50000, 27}, {1e12, 35}});

TEST(NettenBrut, Cases) {
  const NettenBrutKosullari k{15, 6, Tutar(), Tutar(4329), 2};
  const Sinamalar<const char*, double, NettenBrutKosullari, double> durumlar{
      // 665.73 - 99.86 = 565.87; - 84.88 = 480.99; - 3.99 = 477.00
      {"first bracket", 477, k, 665.73},
      {"nothing", 0, k, 0},
      {"no deductions", 500, {0, 0, Tutar(2e12), Tutar(4329), 2}, 500},
      // 1,000 - 150 = 850; - 27 % = 620.50; - 6.00 = 614.50
      {"carried base in the third bracket", 614.50, {15, 6, Tutar(30000), Tutar(4329), 2}, 1000},
      // 10,000 - 15 % of 4,329 (649.35) = 9,350.65; - (1,305 + 650.65 × 20 %) = 7,915.52; - 60.00 = 7,855.52
      {"whole monthly ceiling", 7855.52, k, 10000},
      // 666 - 100 = 566; - 85 = 481; - 4 = 477
      {"no decimals", 477, {15, 6, Tutar(), Tutar(4329), 0}, 666},
      // At 90 % the net of 5 × 100 is 50: the search ends at the upper bound.
      {"gross beyond five times the net", 100, {90, 0, Tutar(2e12), Tutar(4329), 2}, 500},
      {"negative net", -100, {0, 0, Tutar(2e12), Tutar(4329), 2}, -250},
  };
  for (const auto& [ad, net, kosullar, brut] : durumlar)
    EXPECT_EQ(NettenBrut(yil2009, Tutar(net), kosullar), Tutar(brut)) << ad;
  // Between two kuruş there is no gross: the last midpoint tried is the upper neighbour.
  EXPECT_EQ(NettenBrut(yil2009, Tutar(100.005), {0, 0, Tutar(2e12), Tutar(4329), 2}), Tutar(100.01));
}

const auto RastgeleKosul = [](int enCokOnda) {
  return NettenBrutKosullari{*rc::gen::inRange(0, 6001) / 100.0, *rc::gen::inRange(0, 800) / 100.0,
                             Tutar::Hamdan(*rc::gen::inRange<std::int64_t>(0, 600'000'000)),
                             Tutar::Hamdan(*rc::gen::inRange<std::int64_t>(0, 60'000'000)),
                             *rc::gen::inRange(0, enCokOnda + 1)};
};

TEST(NettenBrut, FindsAGrossOfEveryReachableNet) {
  CokDene(3000, [] {
    const NettenBrutKosullari k = RastgeleKosul(3);
    const double brut = test::ParaYuvarla(*rc::gen::inRange(0, 1'000'000) / 100.0, k.paraonda);
    const double net = KahinNet(yil2009, brut, k);
    RC_PRE(brut < 5 * net);
    const Tutar bulunan = NettenBrut(yil2009, Tutar(net), k);
    RC_ASSERT(KahinNet(yil2009, bulunan.Sayi(), k) == net);
  });
}

TEST(NettenBrut, AlwaysEndsWhereTheSecondTellingEnds) {
  CokDene(3000, [] {
    const NettenBrutKosullari k = RastgeleKosul(4);
    const auto net = Tutar::Hamdan(*rc::gen::inRange<std::int64_t>(-1'000'000, 100'000'000));
    RC_ASSERT(NettenBrut(yil2009, net, k) == Tutar(double(test::KahinNettenBrut(yil2009, net, k))));
    const auto buyuk = Tutar::Hamdan(*rc::gen::inRange<std::int64_t>(0, 1'800'000'000'000'000'000));
    RC_ASSERT(NettenBrut(yil2009, buyuk, k) >= buyuk);
  });
}

}  // namespace
}  // namespace belvani
