#include "core/tarih.h"

#include <cmath>
#include <gtest/gtest.h>

#include "core/saat.h"
#include "core/sinamalar.h"

namespace belvani {
namespace {

TEST(Tarih, SerialNumbers) {
  // clang-format off
  const test::Sinamalar<Tarih, int> durumlar{
      {Tarih(1899, 12, 30), 0}, {Tarih(1900, 3, 1), 61}, {Tarih(100, 1, 1), -657434}, {Tarih(2005, 1, 1), 38353},
      {Tarih(2008, 2, 29), 39507}, {Tarih(9999, 12, 31), 2958465}};
  // clang-format on
  for (const auto& [tarih, seri] : durumlar) {
    EXPECT_EQ(tarih.SeriNo(), seri);
    EXPECT_EQ(Tarih::SeriNodan(seri), tarih);
  }
  EXPECT_EQ(Tarih::SeriNodan(38353.999), Tarih(2005, 1, 1));  // the clock time falls away
  EXPECT_EQ(Tarih::SeriNodan(-1.75), Tarih(1899, 12, 29));
  for (const double seri : {-657435.0, 2958466.0, 1e300, -1e300, std::nan("")})
    EXPECT_TRUE(Tarih::SeriNodan(seri).Bos()) << seri;
}

TEST(Tarih, WhatIsNoDayIsNull) {
  for (const Tarih t : {Tarih(1900, 2, 29), Tarih(2005, 4, 31), Tarih(2005, 0, 1), Tarih(2005, 13, 1),
                        Tarih(2005, 1, 0), Tarih(2005, 1, 32), Tarih(99, 1, 1), Tarih(10000, 1, 1)})
    EXPECT_TRUE(t.Bos()) << t.Iso();
  for (const char* metin : {"", "..", "31.02.2008", "1.5.204", "1.5.20045", "1/5/2004", "01.05.2004 ", "-1.5.2004",
                            "2004-05-01", "001.05.2004", "a.b.cccc", "1.5.200a"})
    EXPECT_TRUE(Tarih::MetinOku(metin).Bos()) << metin;
  for (const char* metin : {"", "2008-02-30", "2008/02/01", "2008-02-01T", "20080201", "--", "2008-02-"})
    EXPECT_TRUE(Tarih::IsoOku(metin).Bos()) << metin;
}

// Every day of three centuries, counted by hand.
TEST(Tarih, CalendarAndTextsOverALongRange) {
  int seri = Tarih(1800, 1, 1).SeriNo();
  for (int yil = 1800; yil < 2110; ++yil) {
    const bool artik = (yil % 4 == 0 && yil % 100 != 0) || yil % 400 == 0;
    const int aylar[] = {31, artik ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int ay = 1; ay <= 12; ++ay) {
      ASSERT_EQ(AyinGunSayisi(yil, ay), aylar[ay - 1]);
      for (int gun = 1; gun <= aylar[ay - 1]; ++gun, ++seri) {
        const Tarih t(yil, ay, gun);
        ASSERT_EQ(t.SeriNo(), seri);
        ASSERT_TRUE(t.Yil() == yil && t.Ay() == ay && t.Gun() == gun) << t.Iso();
        ASSERT_EQ(Tarih::IsoOku(t.Iso()), t);
        ASSERT_EQ(Tarih::MetinOku(t.Metin()), t);
        ASSERT_EQ(t.Ekle(1).SeriNo(), seri + 1);
      }
    }
  }
  EXPECT_EQ(Tarih(100, 3, 4).Iso(), "0100-03-04");
  EXPECT_EQ(Tarih(2009, 3, 4).Metin(), "04.03.2009");
  EXPECT_EQ(Tarih::MetinOku("4.3.2009"), Tarih(2009, 3, 4));
  EXPECT_EQ(Tarih(2000, 12, 31).KisaMetin(), "31.12.00");
}

TEST(Tarih, NullAndTheEndsOfTheRange) {
  const Tarih bos;
  EXPECT_EQ(bos.Metin() + bos.Iso() + bos.KisaMetin(), "");
  EXPECT_EQ(bos.Yil() + bos.Ay() + bos.Gun(), 0);
  EXPECT_LT(bos, Tarih(100, 1, 1));
  for (const Tarih t : {bos.Ekle(5), Tarih(9999, 12, 31).Ekle(1), Tarih(100, 1, 1).Ekle(-1),
                        Tarih(2005, 1, 1).Ekle(std::numeric_limits<int>::max())})
    EXPECT_TRUE(t.Bos()) << t.Iso();
  EXPECT_EQ(GunSayisi(Tarih(2008, 2, 28), Tarih(2008, 3, 1)), 3);
  EXPECT_EQ(std::string(AyAdi(1)) + std::string(AyAdi(12)), "OcakAralık");
}

TEST(Tarih, TodayIsTheDayThatWasSetWhileItIsSet) {
  const Tarih ilk(2009, 3, 31);
  {
    const SabitGun dis(ilk);
    {
      const SabitGun ic(ilk.Ekle(1));
      EXPECT_EQ(Tarih::Bugun(), Tarih(2009, 4, 1));
    }
    EXPECT_EQ(Tarih::Bugun(), ilk);
  }
  {
    SabitAn an(1'250'000'000);
    EXPECT_EQ(Tarih::Bugun().Metin(), AnMetni(SimdikiAn()).substr(0, 10)) << "a moment has its day";
    const Tarih gun = Tarih::Bugun();
    an.Gec(10 * 86'400);
    EXPECT_EQ(Tarih::Bugun(), gun.Ekle(10));
  }
  EXPECT_GT(Tarih::Bugun(), Tarih(2020, 1, 1)) << "the clock's again";
}

}  // namespace
}  // namespace belvani
