// Money: the amount, its rounding, old lira, words; and single-precision rates.
#include "core/tutar.h"

#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "core/sinamalar.h"
#include "core/tek.h"
#include "core/yaziile.h"
#include "core/yuvarlama.h"

namespace belvani {
namespace {

using test::Sinamalar;

constexpr double Sonsuz = std::numeric_limits<double>::infinity();
constexpr double Belirsiz = std::numeric_limits<double>::quiet_NaN();

// clang-format off
TEST(Tutar, FromADoubleRoundsToFourDecimalsTiesToEven) {
  const Sinamalar<double, std::int64_t> durumlar{
      {4.158, 41580}, {0.00004, 0}, {0.00006, 1}, {0.03125, 312}, {0.09375, 938}, {-0.03125, -312}, {-0.09375, -938},
      {9.1e14, 9'100'000'000'000'000'000}};
  for (const auto& [sayi, ham] : durumlar) EXPECT_EQ(Tutar(sayi).Ham(), ham) << sayi;
}

TEST(Yuvarla, BiasAndDecimals) {
  const Sinamalar<double, int, double> durumlar{
      {0, 2, 0}, {0, 4, 0}, {1.005, 2, 1.01}, {2.345, 2, 2.35}, {1.00494, 2, 1.00}, {1.00496, 2, 1.01},
      {-1.005, 2, -1.00}, {-1.0051, 2, -1.01}, {2.5, 0, 3}, {-2.5, 0, -2}, {2.4999, 0, 2}, {2.49996, 0, 3},
      {1.25, 1, 1.3}, {0.0625, 3, 0.063}, {0.12343, 4, 0.1235}, {1.005, 9, 1.005}, {2.5, -3, 3}, {9.1e14, 0, 9.1e14}};
  for (const auto& [deger, onda, beklenen] : durumlar)
    EXPECT_EQ(Yuvarlayici(onda)(deger), Tutar(beklenen)) << deger << " paraonda " << onda;
}

TEST(TutarCevir, DropsSixZerosAboveAMillionFrom2004On) {
  const Sinamalar<double, int, double> durumlar{
      {1'000'000.01, 2004, 1}, {1'000'000, 2004, 1'000'000}, {5'000'000, 2003, 5'000'000}, {693.005, 2009, 693.01},
      {1'234'567'000, 2005, 1234.57}, {-5'000'000, 2004, -5'000'000}};
  for (const auto& [tutar, yil, beklenen] : durumlar)
    EXPECT_EQ(TutarCevir(Tutar(tutar), yil, Yuvarlayici(2)), Tutar(beklenen)) << tutar << " in " << yil;
}

// The two long ones hold every word.
TEST(YaziIleTutar, Examples) {
  const Sinamalar<double, int, const char*> durumlar{
      {1250.75, 2, "binikiyüzelli TL yetmişbeş KR"}, {1001, 2, "binbir TL"}, {101000, 2, "yüzbirbin TL"},
      {1'001'000, 2, "birmilyonbin TL"}, {2'000'000, 2, "ikimilyon TL"}, {0.05, 2, " TL beş KR"}, {0, 2, " TL"},
      {0.999, 2, "bir TL"}, {12.5, 0, "onüç TL"}, {12.3456, 4, "oniki TL otuzdört KR"}, {-21, 2, "yirmibir TL"},
      {123'456'789'012'345, 0, "yüzyirmiüçtrilyondörtyüzellialtımilyaryediyüzseksendokuzmilyononikibinüçyüzkırkbeş TL"},
      {98'076'039'168, 0, "doksansekizmilyaryetmişaltımilyonotuzdokuzbinyüzaltmışsekiz TL"}};
  for (const auto& [tutar, onda, yazi] : durumlar) EXPECT_EQ(YaziIleTutar(Tutar(tutar), Yuvarlayici(onda)), yazi);
  EXPECT_EQ(YaziIleTutar(Tutar(1.01), Yuvarlayici(2), "YTL", "YKR"), "bir YTL bir YKR");
}

TEST(Tek, IsTheShortestDecimalOfASingle) {
  const Sinamalar<double, double> durumlar{
      {double(0.1f), 0.1}, {double(33.6f), 33.6}, {7.5, 7.5}, {0.1 + 0.2, 0.3}, {1e10, 1e10}, {16777217.0, 16777216.0},
      {1e-50, 0}, {1e39, 0}, {Sonsuz, 0}, {Belirsiz, 0}};
  for (const auto& [sayi, beklenen] : durumlar) EXPECT_EQ(Tek(sayi).Sayi(), beklenen) << sayi;
}
// clang-format on

TEST(Tutar, WhatLeavesTheRangeThrows) {
  for (const double sayi : {9.2e14, -9.2e14, 1e300, Sonsuz, Belirsiz}) {
    EXPECT_THROW(Tutar{sayi}, TutarTasmasi) << sayi;
    EXPECT_THROW(Yuvarlayici(2)(sayi), TutarTasmasi) << sayi;
  }
  const auto enBuyuk = Tutar::Hamdan(std::numeric_limits<std::int64_t>::max());
  EXPECT_THROW(enBuyuk + Tutar::Hamdan(1), TutarTasmasi);
  EXPECT_THROW(Tutar::Hamdan(-2) - enBuyuk, TutarTasmasi);
  EXPECT_THROW(2 * enBuyuk, TutarTasmasi);
  EXPECT_EQ(30 * Tutar(23.1), Tutar(693.0));
}

// With less than four decimals an amount plus half of its last unit is never a tie: whole numbers tell the result.
RC_GTEST_PROP(Yuvarla, AgreesWithWholeNumbers, ()) {
  const auto ham = *rc::gen::inRange<std::int64_t>(-1'000'000'000'000, 1'000'000'000'000);
  const auto onda = *rc::gen::inRange(0, 4);
  const std::int64_t birim = std::array{10'000, 1'000, 100, 10}[std::size_t(onda)];
  const std::int64_t kalan = ((ham % birim) + birim) % birim;
  const Tutar beklenen = Tutar::Hamdan(ham - kalan + (kalan >= birim / 2 ? birim : 0));
  RC_ASSERT(Yuvarlayici(onda)(Tutar::Hamdan(ham)) == beklenen);
  RC_ASSERT(Yuvarlayici(onda)(beklenen) == beklenen);
}

RC_GTEST_PROP(Tek, HundredthsSurviveSinglePrecisionAndTheStore, (float kayan)) {
  const double sayi = *rc::gen::inRange(-999'999, 1'000'000) / 100.0;
  RC_ASSERT(Tek(double(float(sayi))).Sayi() == sayi);
  const Tek tek{double(kayan)};
  RC_ASSERT(tek.Kayan() == kayan);
  RC_ASSERT(Tek(tek.Sayi()) == tek);
}

}  // namespace
}  // namespace belvani
