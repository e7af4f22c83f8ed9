// The pay period, the days a person belongs to it, missing days.
#include "payroll/hesap/donem.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/sayi.h"
#include "core/sinamalar.h"

namespace belvani {
namespace {

using test::Sinamalar;
constexpr auto Takvim = DonemTuru::Takvim;
constexpr auto Ters = DonemTuru::Ters;
constexpr auto Uygun = DonemUygunlugu::Uygun;
constexpr auto Disi = DonemUygunlugu::DonemDisi;
constexpr auto Hatali = DonemUygunlugu::GirisTarihiHatali;

TEST(BordroDonemi, Bounds) {
  const Sinamalar<BordroDonemi, const char*, const char*> durumlar{
      {{2008, 1, Takvim}, "2008-01-01", "2008-01-31"}, {{2008, 2, Takvim}, "2008-02-01", "2008-02-29"},
      {{2009, 2, Takvim}, "2009-02-01", "2009-02-28"}, {{2008, 12, Takvim}, "2008-12-01", "2008-12-31"},
      {{2008, 11, Ters}, "2008-11-15", "2008-12-14"},  {{2008, 12, Ters}, "2008-12-15", "2009-01-14"},
      {{2009, 2, Ters}, "2009-02-15", "2009-03-14"},
  };
  for (const auto& [donem, bas, son] : durumlar) {
    EXPECT_EQ(donem.Bas().Iso(), bas);
    EXPECT_EQ(donem.Son().Iso(), son);
  }
}

TEST(GunSayisiBul, DaysOfThePerson) {
  const BordroDonemi ocak{2009, 1, Takvim}, subat{2009, 2, Takvim}, artikSubat{2008, 2, Takvim};
  const BordroDonemi nisan{2009, 4, Takvim}, tersAralik{2008, 12, Ters}, tersSubat{2009, 2, Ters};
  const Sinamalar<const char*, BordroDonemi, const char*, const char*, int, DonemUygunlugu> durumlar{
      {"whole month of 31 days", ocak, "2000-05-05", "", 30, Uygun},
      {"hired on the 2nd of 31 days", ocak, "2009-01-02", "", 30, Uygun},
      {"hired on the 3rd of 31 days", ocak, "2009-01-03", "", 29, Uygun},
      {"whole month of 30 days", nisan, "2009-04-01", "", 30, Uygun},
      {"hired on the 2nd of 30 days", nisan, "2009-04-02", "", 29, Uygun},
      {"whole February", subat, "2009-02-01", "", 30, Uygun},
      {"hired on 2 February", subat, "2009-02-02", "", 27, Uygun},
      {"whole leap February", artikSubat, "2008-02-01", "2008-02-29", 30, Uygun},
      {"left on the 28th of a leap February", artikSubat, "2000-01-01", "2008-02-28", 28, Uygun},
      {"28 days of another month", nisan, "2009-04-03", "", 28, Uygun},
      {"century: every fourth year leaps", {2100, 2, Takvim}, "2000-01-01", "", 28, Uygun},
      {"one day at the end", ocak, "2009-01-31", "", 1, Uygun},
      {"hired after the end", ocak, "2009-02-01", "", 0, Disi},
      {"left on the first day", ocak, "2000-01-01", "2009-01-01", 1, Uygun},
      {"left the day before", ocak, "2000-01-01", "2008-12-31", 0, Disi},
      {"left later", ocak, "2009-01-20", "2009-05-05", 12, Uygun},
      {"no hire date", ocak, "", "2009-01-20", 0, Hatali},
      {"left before the hire, both inside", ocak, "2009-01-20", "2009-01-10", -9, Uygun},
      {"straddling December: 31 days", tersAralik, "2000-01-01", "", 30, Uygun},
      {"straddling, hired on the last day", tersAralik, "2009-01-14", "", 1, Uygun},
      {"straddling, hired a day late", tersAralik, "2009-01-15", "", 0, Disi},
      {"straddling February: 28 days", tersSubat, "2000-01-01", "", 30, Uygun},
      {"straddling February, hired on the 16th", tersSubat, "2009-02-16", "", 27, Uygun},
  };
  for (const auto& [ad, donem, gir, cik, gun, uygunluk] : durumlar) {
    const CalismaGunu s = GunSayisiBul(donem, Tarih::IsoOku(gir), Tarih::IsoOku(cik));
    EXPECT_EQ(s.CalismaGun, gun) << ad;
    EXPECT_EQ(s.uygunluk, uygunluk) << ad;
  }
}

// Counts the days of the period one by one.
RC_GTEST_PROP(GunSayisiBul, AgreesDayByDayAndStaysWithinThirty, ()) {
  const BordroDonemi donem{*rc::gen::inRange(2003, 2013), *rc::gen::inRange(1, 13), *rc::gen::element(Takvim, Ters)};
  const Tarih gir = donem.Bas().Ekle(*rc::gen::inRange(-40, 40));
  const Tarih cik = *rc::gen::arbitrary<bool>() ? gir.Ekle(*rc::gen::inRange(0, 70)) : Tarih();
  const int tersMi = donem.tur == Ters ? 1 : 0;
  const int uzunluk = AyinGunSayisi(donem.yil, donem.ay);  // the straddling period is as long as its first month
  int gun = 0;
  for (int i = 0; i < uzunluk; ++i) {
    const Tarih t = Tarih(donem.yil, donem.ay, 1).Ekle(14 * tersMi + i);
    gun += t >= gir && (cik.Bos() || t <= cik) ? 1 : 0;
  }
  const CalismaGunu s = GunSayisiBul(donem, gir, cik);
  RC_ASSERT(s.CalismaGun >= 0 && s.CalismaGun <= 30);
  RC_ASSERT((s.uygunluk == Uygun) == (gun > 0));
  RC_ASSERT(s.CalismaGun == (gun == uzunluk ? 30 : std::min(gun, 30)));
}

TEST(AyGunuBul, LengthForTheMissingDays) {
  const Sinamalar<int, int, int, int> durumlar{{1, 2009, 30, 31},  {4, 2009, 30, 30}, {2, 2009, 30, 28},
                                               {2, 2008, 30, 29},  {2, 2100, 30, 29}, {12, 2009, 30, 31},
                                               {11, 2009, 30, 30}, {1, 2009, 29, 29}, {2, 2008, 28, 28},
                                               {7, 2009, 0, 0},    {1, 2009, 31, 31}};
  for (const auto& [ay, yil, CalismaGun, gun] : durumlar)
    EXPECT_EQ(AyGunuBul(ay, yil, CalismaGun), gun) << ay << "/" << yil << ", " << CalismaGun;
}

TEST(EksikGunDenetle, CompleteOnlyWithAReasonAndAFullMonth) {
  const Sinamalar<const char*, std::array<int, 5>, EksikGun> durumlar{
      // SskGun, CalismaGun, AyGunu, reason, unpaid days
      {"all days", {30, 30, 31, 7, 5}, {0, 0, true}},
      {"all days of a part month", {12, 12, 12, 0, 0}, {0, 0, true}},
      {"reason and days", {20, 30, 31, 7, 11}, {7, 11, true}},
      {"no reason", {20, 30, 31, 0, 11}, {0, 11, false}},
      {"a day short", {20, 30, 31, 7, 10}, {7, 10, false}},
      {"a day over", {20, 30, 31, 7, 12}, {7, 12, false}},
      {"no days at all", {0, 30, 30, 21, 30}, {21, 30, true}},
      {"more days than worked", {13, 12, 12, 1, 0}, {1, 0, false}},
  };
  for (const auto& [ad, g, beklenen] : durumlar) {
    const EksikGun e = EksikGunDenetle(g[0], g[1], g[2], g[3], g[4]);
    EXPECT_EQ(std::tuple(e.sebep, e.ucretsizizin, e.tamam),
              std::tuple(beklenen.sebep, beklenen.ucretsizizin, beklenen.tamam))
        << ad;
  }
}

TEST(EksikGun, SuggestionAndReasonList) {
  const Sinamalar<int, int, int> oneriler{{20, 31, 11}, {30, 31, 0}, {29, 31, 2}, {0, 28, 28}};
  for (const auto& [SskGun, AyGunu, oneri] : oneriler) EXPECT_EQ(UcretsizIzinOnerisi(SskGun, AyGunu), oneri);
  const Sinamalar<int, int> kodlar{{0, 0},   {1, 1},   {2, -1},  {3, 2},   {13, 12},
                                   {14, -1}, {15, 13}, {21, 19}, {22, -1}, {-1, -1}};
  for (const auto& [kod, sira] : kodlar) EXPECT_EQ(EksikSebepSec(kod), sira) << kod;
}

}  // namespace
}  // namespace belvani
