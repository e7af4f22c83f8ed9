// The calculation of the declaration from a pay record to rows, totals and premiums.
#include "sirket.h"

namespace belvani {
namespace {

using test::Satir;
using test::Sigortali;

const Yuvarlayici kurus(2);

// Counters, then bases: "1 30 0 0 0 0 1 3 100.5 | 1250.5 0 1250.5 1250.5 0 1250.5".
std::string Metin(const BildirgeToplamlari& t) {
  std::string metin;
  for (const int sayi :
       {t.sigortali, t.gun, t.giren, t.ayrilan, t.ucretsizIzinli, t.ucretsizGun, t.ucretliIzinli, t.ucretliGun})
    metin += std::to_string(sayi) + " ";
  metin += YalinMetin(t.ucretliKazanc) + " |";
  for (const auto brans : BransMatrahlari) metin += " " + YalinMetin(t.*brans);
  return metin;
}

struct Hesap {
  YasalParametreler yasal = test::Yasal(2009, 7);

  Bildirge operator()(const Sigortali& s, BordroDonemi donem = {2009, 7}) const {
    Bildirge b;
    KaydiEkle(b, {.brd = s.brd, .sicil = s.sicil, .tcno = s.tcno}, {yasal, donem, kurus});
    return b;
  }
};

TEST(BildirgeHesap, RowAndTotals) {
  const Hesap hesap;
  Sigortali s("001");
  s.sicil.meslekkod = "2411.03";
  s.brd.ui = 3;
  s.brd.ng = 20;
  s.brd.rt = s.brd.mi = s.brd.ha = 1;
  s.brd.ucrizmatrah = Tutar(100.5);
  s.brd.topyardim = Tutar(250.0);
  s.brd.katki = Tutar(50.0);
  s.brd.sskmatrahisveren = Tutar(1250.5);
  s.brd.rapcalismadi = 1;
  const Bildirge b = hesap(s);
  BildirgeSatiri beklenen = Satir(
      "sigkol=01|sskno=34010001|tcno=10000000146|adi=Işıl|soyadi=Çağ001|primkazanc=1250.5|ikramiye=250|gun=30|ui=3|"
      "uiucret=100.5|farkmivar=1|kanun=05510|primdisi=250|meslekkod=2411.03|rapcalismadi=1");
  beklenen.no = 1;
  beklenen.kod = "001";
  EXPECT_EQ(b.satirlar.front(), beklenen);
  EXPECT_EQ(Metin(b.toplamlar), "1 30 0 0 0 0 1 3 100.5 | 1250.5 0 1250.5 1250.5 0 1250.5");
  EXPECT_EQ(b.DevletKatki, Tutar(50.0));
}

TEST(BildirgeHesap, TheStatusDecidesTheBranches) {
  const Hesap hesap;
  const struct {
    const char* ad;
    int sskdurum;
    const char* matrahlar;
  } ornekler[] = {
      {"a pensioner who works", 1, "1000 0 0 0 1000 0"}, {"no unemployment", 12, "1000 0 1000 1000 0 0"},
      {"an unused row of the table", 2, "0 0 0 0 0 0"},  {"a named status without rates", 32, "1000 0 0 0 0 0"},
      {"beyond the table", 200, "0 0 0 0 0 0"},
  };
  for (const auto& o : ornekler) {
    Sigortali s("1");
    s.sicil.sskdurum = std::uint8_t(o.sskdurum);
    EXPECT_EQ(Metin(hesap(s).toplamlar), std::string("1 30 0 0 0 0 0 0 0 | ") + o.matrahlar) << o.ad;
    s.brd.ng = s.brd.ht = 0;
    EXPECT_EQ(Metin(hesap(s).toplamlar), "1 0 0 0 0 0 0 0 0 | 0 0 0 0 0 0") << o.ad << ", without days";
  }
}

TEST(BildirgeHesap, BordersOfThePeriod) {
  const Hesap hesap;
  const BordroDonemi temmuz{2009, 7}, ters{2008, 12, DonemTuru::Ters};
  const struct {
    BordroDonemi donem;
    Tarih gun;
    bool icinde;
  } ornekler[] = {{temmuz, {2009, 7, 1}, true}, {temmuz, {2009, 6, 30}, false}, {temmuz, {2009, 7, 31}, true},
                  {temmuz, {}, false},          {temmuz, {2009, 8, 1}, false},  {ters, {2008, 12, 15}, true},
                  {ters, {2009, 1, 14}, true},  {ters, {2008, 12, 14}, false},  {ters, {2009, 1, 15}, false}};
  for (const auto& o : ornekler) {
    Sigortali s("1");
    s.sicil.girtar = s.sicil.ciktar = o.gun;
    s.sicil.cikiskodu = 4;
    const Bildirge b = hesap(s, o.donem);
    EXPECT_EQ(b.satirlar[0].girtar, o.icinde ? o.gun : Tarih());
    EXPECT_EQ(b.satirlar[0].ciktar, b.satirlar[0].girtar);
    EXPECT_EQ(b.satirlar[0].ciksebeb, o.icinde ? std::optional(4) : std::nullopt) << o.gun.Metin();
    EXPECT_EQ(b.toplamlar.giren + b.toplamlar.ayrilan, o.icinde ? 2 : 0) << o.gun.Metin();
  }
}

TEST(BildirgeHesap, MissingDaysAndCurrencies) {
  const Hesap hesap;
  for (const int gun : {0, 1, 29, 30}) {
    Sigortali s("1");
    s.brd.ucretsizizin = std::uint8_t(gun);
    s.brd.eksiksebebi = 7;
    const Bildirge b = hesap(s);
    EXPECT_EQ(b.satirlar.front().eksik, gun > 0 ? std::optional(7) : std::nullopt) << gun;
    EXPECT_EQ(b.satirlar.front().eksikgunsayisi, gun > 0 ? std::optional(gun) : std::nullopt) << gun;
    EXPECT_EQ(b.toplamlar.ucretsizIzinli, gun > 0 && gun < 30) << gun;
    EXPECT_EQ(b.toplamlar.ucretsizGun, gun < 30 ? gun : 0);
  }
  const std::tuple<int, double, const char*> tutarlar[] = {
      {2004, 1e6, "1000000"}, {2004, 1'000'001, "1"}, {2004, 423e6, "423"}, {2003, 306e6, "306000000"}};
  for (const auto& [yil, saklanan, beklenen] : tutarlar) {
    Sigortali s("1", yil);
    s.brd.sskmatrahisveren = s.brd.katki = Tutar(saklanan);
    const Bildirge b = hesap(s, {yil, 7});
    EXPECT_EQ(YalinMetin(b.satirlar.front().primkazanc.value()), beklenen);
    EXPECT_EQ(YalinMetin(b.DevletKatki), beklenen);
    EXPECT_EQ(YalinMetin(b.toplamlar.kisaVade), beklenen);
  }
}

TEST(BildirgeHesap, AddingAgainDiffersFromTheFirstTime) {
  const Hesap hesap;
  Sigortali s("1");
  s.brd.sskmatrah = {};
  s.brd.ucretsizizin = 30;
  s.brd.eksiksebebi = 7;
  s.brd.ng = s.brd.ht = 0;
  std::vector<BildirgeSatiri> satirlar = hesap(s).satirlar;
  EXPECT_EQ(Metin(ToplamlariYenile(satirlar, hesap.yasal)), "1 0 0 0 1 7 0 0 0 | 1000 0 1000 1000 0 1000");
  satirlar.front().gun = 12;
  satirlar.front().girtar = Tarih(2009, 7, 15);
  satirlar.push_back(Satir("primkazanc=500|gun=30"));  // no document type: not counted
  satirlar.push_back(Satir("sigkol=02|primkazanc=1,500.25|gun=|ui=9"));
  const BildirgeToplamlari t = ToplamlariYenile(satirlar, hesap.yasal);
  EXPECT_EQ(Metin(t), "2 12 1 0 1 7 1 0 0 | 2500.25 0 1000 1000 1500.25 1000")
      << "who has days counts as one with paid leave";
}

TEST(BildirgeHesap, RatesAndPremiums) {
  const Hesap hesap;
  YasalParametreler yasal = hesap.yasal;
  yasal.oranlar.IsciOran[1].mal = Tek(8.5);
  EXPECT_EQ(PrimOranlari(yasal, 1, Tek(1.3)), (BransOranlari{Tek(1.3), Tek(0), Tek(12.5), Tek(20), Tek(0), Tek(3)}));
  EXPECT_EQ(PrimOranlari(yasal, 2, Tek(1))[4], Tek(30));
  EXPECT_EQ(PrimOranlari(yasal, 0, Tek(1)), (BransOranlari{Tek(1), Tek(0), Tek(12.5), Tek(8.5), Tek(0), Tek(3)}))
      << "all statuses: the first one's, invalidity from the second";
  EXPECT_EQ(PrimOranlari(yasal, 40, Tek(1)), BransOranlari{Tek(1)});

  BildirgeToplamlari t;
  t.kisaVade = t.analik = t.saglik = t.uzunVade = Tutar(1000.0);
  t.issizlik = Tutar(333.5);
  const BildirgePrimleri p =
      PrimleriHesapla(t, {Tek(1), Tek(1), Tek(12.5), Tek(20), Tek(30), Tek(3)}, Tutar(50.0), kurus);
  EXPECT_EQ(p.primler, (std::array{Tutar(10.0), Tutar(-50.0), Tutar(125.0), Tutar(200.0), Tutar(), Tutar(10.01)}));
  EXPECT_EQ(p.genelToplam, Tutar(355.01)) << "with the maternity premium, without the state's contribution";
}

TEST(BildirgeSatiri, WhatIsTypedIntoACell) {
  const struct {
    const char* kolon;
    const char* yazilan;
    const char* gorunen;  // null: refused
  } ornekler[] = {{"sigkol", "7", "07"},
                  {"sigkol", "ab", nullptr},
                  {"gun", " 29 ", "29"},
                  {"gun", "29.5", nullptr},
                  {"gun", "12 gün", nullptr},
                  {"gun", "9999", "9999"},
                  {"gun", "10000", nullptr},
                  {"gun", "", ""},
                  {"eksik", "-3", "-3"},
                  {"primkazanc", "1,250.505", "1,250.51"},
                  {"primkazanc", "1e3", nullptr},
                  {"primkazanc", "12,5", nullptr},
                  {"primkazanc", "920,000,000,000,000", nullptr},
                  {"uiucret", "", ""},
                  {"girtar", "1.7.2009", "01.07.2009"},
                  {"girtar", "31.06.2009", nullptr},
                  {"girtar", " ", ""},
                  {"adi", " 1,000 ", " 1,000 "}};
  for (const auto& o : ornekler) {
    const BildirgeKolonu& kolon = *BildirgeKolonuBul(o.kolon);
    const BildirgeSatiri once = Satir("sigkol=01|gun=30|eksik=6|primkazanc=5|uiucret=7|girtar=01.01.2009");
    BildirgeSatiri satir = once;
    const Durum alindi = HucreYaz(satir, kolon, o.yazilan);
    ASSERT_EQ(bool(alindi), o.gorunen != nullptr) << o.kolon << " " << o.yazilan;
    if (alindi)
      EXPECT_EQ(HucreMetni(satir, kolon, 2), o.gorunen) << o.kolon;
    else
      EXPECT_TRUE(satir == once && !alindi.KusurMetni().empty() && alindi.Kusuru().alan.ad == o.kolon) << o.yazilan;
  }
  EXPECT_EQ(Satir("primkazanc=1,250.505").primkazanc, Tutar(1250.505)) << "with all its decimals";
}

// Fields show a zero as nothing: to leave one as it was is no edit, and to empty any other number is one.
TEST(BildirgeSatiri, ZeroAndEmptyAreTwoThings) {
  const BildirgeKolonu& gun = *BildirgeKolonuBul("gun");
  BildirgeSatiri satir;
  EXPECT_EQ(HucreMetni(satir, gun, 2), "");
  satir.gun = 0;
  EXPECT_EQ(HucreMetni(satir, gun, 2), "0");
  ASSERT_TRUE(HucreYaz(satir, gun, ""));
  EXPECT_EQ(satir.gun, 0);
  satir.gun = 5;
  ASSERT_TRUE(HucreYaz(satir, gun, ""));
  EXPECT_EQ(satir.gun, std::nullopt);
}

}  // namespace
}  // namespace belvani
