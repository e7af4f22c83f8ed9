// What the lookup of people costs on a network. On a server alone.
#include <gtest/gtest.h>

#include "payroll/hazirlik/sirket.h"
#include "personnel/ara.h"
#include "sunucu/aktarici.h"

namespace belvani {
namespace {

TEST(SunucuRehberi, OpensInOneWaitAndFiltersInNone) {
  if (!test::SunucudaMi()) GTEST_SKIP() << "of a server alone";
  test::Sirket sirket;
  for (int i = 0; i < 50; ++i) sirket.Kisi("P" + std::to_string(100 + i), 1000);
  test::Aktarici ag(test::SunucuDizini());
  Oturum uzak;
  uzak.DataPath = VeriYolu(ag.Adres(sirket.veriYeri.Veritabani())).Adres();
  ASSERT_TRUE(SirketAc(uzak, "DENEME"));
  ag.Turlar();
  const auto liste = KisiListesi::Oku(uzak);
  ASSERT_TRUE(liste);
  EXPECT_LE(ag.Turlar(), 1) << "opens";
  EXPECT_EQ(liste->Ara(AramaTuru::KodBastan, "p14").size(), 10u);
  EXPECT_EQ(ag.Turlar(), 0) << "filters";
}

}  // namespace
}  // namespace belvani
