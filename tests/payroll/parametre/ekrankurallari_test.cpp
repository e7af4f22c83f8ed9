#include "payroll/parametre/ekrankurallari.h"

#include <gtest/gtest.h>

namespace belvani {

TEST(EkranKurallari, BracketsErasAndBranches) {
  GvTablosu gv;
  gv.GvLimit = {Tutar(8700), Tutar(1234567.5)};
  const char* const altSinirlar[] = {"", "8,700", "1,234,568", ""};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(GvAltSinirMetni(gv, i), altSinirlar[i]) << i;
  EXPECT_EQ(KanunSatiriKusuru({Tarih(), Tarih()})->metin, "Kanun Başlangıç Tarihi Hatalı");
  EXPECT_EQ(KanunSatiriKusuru({Tarih(2008, 10, 1), Tarih()})->alan.ad, "bittar");
  EXPECT_FALSE(KanunSatiriKusuru({Tarih(2008, 10, 1), Tarih(2009, 10, 1)}));
  EXPECT_EQ(OranliDallar(VarsayilanHesapTurleri()).size(), 32u) << "branch 33 has no rates";
  EXPECT_EQ(OranToplami({Tek(1), Tek(6), Tek(11), Tek(0.1), Tek(2)}), 18.1);
}

}  // namespace belvani
