// Built-in tables, eras of the premium rules, work-accident rate.
#include "payroll/parametre/parametreler.h"

#include <gtest/gtest.h>
#include <limits>

#include "core/sinamalar.h"

namespace belvani {
namespace {

using test::Sinamalar;

// clang-format off
TEST(UygulamaBul, AMonthIsJudgedByItsFirstDayInTheFirstRowThatCoversIt) {
  const Kanunlar kanunlar{
      {Tarih(2005, 1, 1), Tarih(2005, 3, 1), 7},  // March is outside: it begins on the last day
      {Tarih(2005, 3, 2), Tarih(2006, 1, 1), 8},  // begins after the first of March
      {Tarih(2005, 5, 1), Tarih(2005, 7, 1), 9},  // hidden behind the row above
      {Tarih(), Tarih(2100, 1, 1), 10},           // no first day: holds for no month
      {Tarih(2007, 1, 1), Tarih(), 11},           // no last day: neither
      {Tarih(2006, 6, 1), Tarih(2006, 8, 1), -12}};
  const Sinamalar<Kanunlar, int, int, int> durumlar{
      {kanunlar, 2005, 1, 7}, {kanunlar, 2005, 3, 0}, {kanunlar, 2005, 4, 8}, {kanunlar, 2005, 6, 8},
      {kanunlar, 2006, 1, 0}, {kanunlar, 2006, 7, -12}, {kanunlar, 2007, 2, 0}, {kanunlar, 2006, 13, 0},
      {VarsayilanKanunlar(), 2003, 12, 0}, {VarsayilanKanunlar(), 2004, 1, 1}, {VarsayilanKanunlar(), 2004, 6, 1},
      {VarsayilanKanunlar(), 2004, 7, 2}, {VarsayilanKanunlar(), 2007, 12, 2}, {VarsayilanKanunlar(), 2008, 1, 3},
      {VarsayilanKanunlar(), 2008, 9, 3}, {VarsayilanKanunlar(), 2008, 10, 4}, {VarsayilanKanunlar(), 3000, 12, 4},
      {VarsayilanKanunlar(), 3001, 1, 0}};
  for (const auto& [satirlar, yil, ay, uygulama] : durumlar)
    EXPECT_EQ(UygulamaBul(satirlar, ay, yil), uygulama) << ay << "/" << yil;
}

TEST(TehlikeOrani, FollowsClassAndDegreeWithinItsRange) {
  constexpr double sonsuz = std::numeric_limits<double>::infinity();
  const Sinamalar<int, double, double> durumlar{
      {0, 1, 1.5}, {1, 1, 1.3}, {2, 1, 1.7}, {0, 4, 3}, {2, 10, 6.2}, {0, 11, 6.5}, {1, 11, 6.3}, {2, 11, 6.5},
      {0, 12, 6.5}, {1, 0, 1}, {0, 0, 1}, {2, 0, 1.2}, {0, -7, 1}, {3, 12, 1}, {-1, 12, 1}, {0, 2.5, 2.25},
      {0, sonsuz, 6.5}, {0, -sonsuz, 1}, {2, std::numeric_limits<double>::quiet_NaN(), 1}};
  for (const auto& [tehlike, sinif, oran] : durumlar)
    EXPECT_EQ(TehlikeOrani(tehlike, sinif).Sayi(), oran) << tehlike << ", " << sinif;
}
// clang-format on

TEST(HazirTablolar, BranchesAreNumberedAndMarked) {
  const HesapTurleri turler = VarsayilanHesapTurleri();
  std::string isKazasi;
  for (std::size_t i = 0; i < turler.size(); ++i) {
    EXPECT_EQ(turler[i].no, i < 33 ? i + 1 : 0);
    EXPECT_EQ(turler[i].ack.empty(), i >= 33);
    isKazasi += char('0' + turler[i].isKazasi);
  }
  EXPECT_EQ(isKazasi, "11011100010011100011111111111111100000000000000000");
  EXPECT_EQ(turler[12].ack, "Tümüne Dahil Olup İşsizlik Sigortası Haricindekiler");
  EXPECT_EQ(turler[32].ack, "İşsizlik hariç 180 gün fiili hizmet");
}

}  // namespace
}  // namespace belvani
