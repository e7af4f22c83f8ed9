// Built-in tables, eras of the premium rules, work-accident rate.
#include "payroll/parametre/parametreler.h"

#include <gtest/gtest.h>
#include <limits>

namespace belvani {
namespace {

TEST(UygulamaBul, AMonthIsJudgedByItsFirstDay) {
  const struct {
    int yil, ay, uygulama;
  } durumlar[] = {
      {2003, 12, 0}, {2004, 1, 1},  {2004, 6, 1},  {2004, 7, 2},  {2007, 12, 2}, {2008, 1, 3},
      {2008, 9, 3},  {2008, 10, 4}, {2009, 12, 4}, {3000, 12, 4}, {3001, 1, 0},  {2008, 0, 0},
      {2008, 13, 0}, {0, 1, 0},     {-5, 1, 0},    {99999, 1, 0}, {1899, 12, 0},
  };
  for (const auto& d : durumlar)
    EXPECT_EQ(UygulamaBul(VarsayilanKanunlar(), d.ay, d.yil), d.uygulama) << d.ay << "/" << d.yil;
}

TEST(UygulamaBul, TheFirstRowThatCoversTheDayWinsAndTheLastDayIsOutside) {
  const Kanunlar kanunlar{
      {Tarih(2005, 1, 1), Tarih(2005, 3, 1), 7},  // March is outside: it begins on the last day
      {Tarih(2005, 3, 2), Tarih(2006, 1, 1), 8},  // begins after the first of March
      {Tarih(2005, 5, 1), Tarih(2005, 7, 1), 9},  // hidden behind the row above
      {Tarih(), Tarih(2100, 1, 1), 10},           // no first day: holds for no month
      {Tarih(2007, 1, 1), Tarih(), 11},           // no last day: neither
      {Tarih(2006, 6, 1), Tarih(2006, 8, 1), -12},
  };
  const struct {
    int yil, ay, uygulama;
  } durumlar[] = {{2005, 1, 7}, {2005, 2, 7}, {2005, 3, 0},   {2005, 4, 8},
                  {2005, 6, 8}, {2006, 1, 0}, {2006, 7, -12}, {2007, 2, 0}};
  for (const auto& d : durumlar) EXPECT_EQ(UygulamaBul(kanunlar, d.ay, d.yil), d.uygulama) << d.ay << "/" << d.yil;
  EXPECT_EQ(UygulamaBul({}, 1, 2005), 0);
}

TEST(TehlikeOrani, FollowsClassAndDegreeWithinItsRange) {
  constexpr double sonsuz = std::numeric_limits<double>::infinity();
  const struct {
    int tehlike;
    double sinif;
    double oran;
  } durumlar[] = {
      {0, 1, 1.5},
      {1, 1, 1.3},
      {2, 1, 1.7},
      {0, 4, 3},
      {1, 4, 2.8},
      {2, 4, 3.2},
      {2, 10, 6.2},
      {0, 11, 6.5},
      {1, 11, 6.3},
      {2, 11, 6.5},
      {0, 12, 6.5},
      {1, 20, 6.5},
      {0, 20, 6.5},
      {1, 0, 1},
      {0, 0, 1},
      {2, 0, 1.2},
      {0, -7, 1},
      {3, 12, 1},
      {-1, 12, 1},
      {0, 2.5, 2.25},
      {0, sonsuz, 6.5},
      {0, -sonsuz, 1},
      {2, std::numeric_limits<double>::quiet_NaN(), 1},
  };
  for (const auto& d : durumlar)
    EXPECT_EQ(TehlikeOrani(d.tehlike, d.sinif).Sayi(), d.oran) << d.tehlike << ", " << d.sinif;
}

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
  EXPECT_EQ(turler[29].ack, "Tüm sigorta kolları 90 gün fiili  hizmet");
  EXPECT_EQ(turler[32].ack, "İşsizlik hariç 180 gün fiili hizmet");
}

TEST(HazirTablolar, CompanyTables) {
  const KazancBayraklari bayraklar = VarsayilanKazancBayraklari();
  EXPECT_EQ(bayraklar.k, (std::array<std::uint8_t, 9>{15, 15, 14, 14, 14, 14, 14, 14, 14}));
  EXPECT_EQ(bayraklar.y, (std::array<std::uint8_t, 11>{}));
  EXPECT_EQ(VarsayilanYardimlar()[1].adi, "yemek");
  EXPECT_EQ(VarsayilanYardimlar()[10].adi, "Kıdem Tazminatı");
}

}  // namespace
}  // namespace belvani
