// The shipped statutory figures: every month loads, is sane, and holds the published amounts.
#include "payroll/parametre/mevzuat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>
#include <set>

#include "core/dosya.h"
#include "core/ortam.h"
#include "core/sinamalar.h"
#include "gecici.h"

namespace belvani {
namespace {

using Json = nlohmann::json;
using test::Sinamalar;
using testing::HasSubstr;

const std::string mevzuat = test::KaynakYolu("data/mevzuat/");

YasalParametreler Yukle(int yil, int ay, Lira lira = Lira::Yeni) {
  const auto p = MevzuatYukle(mevzuat, yil, ay, lira);
  EXPECT_TRUE(p) << yil << "/" << ay << ": " << p.KusurMetni();
  return p ? *p : YasalParametreler();
}

double Toplam(const OranSatiri& o) {
  return o.ana.Sayi() + o.has.Sayi() + o.mal.Sayi() + o.sgdp.Sayi();
}

void TarifeSaglam(const GvTablosu& gv, Lira lira, const std::string& donem) {
  std::size_t n = 0;
  while (n < gv.GvLimit.size() && gv.GvLimit[n] != Tutar()) ++n;
  ASSERT_GE(n, 4u) << donem;
  EXPECT_EQ(gv.GvOran[0].Sayi(), 15) << donem;
  EXPECT_EQ(gv.GvLimit[n - 1], AcikDilimLimiti(lira)) << donem;
  for (std::size_t i = 1; i < n; ++i) {
    EXPECT_GT(gv.GvLimit[i], gv.GvLimit[i - 1]) << donem;
    EXPECT_GT(gv.GvOran[i], gv.GvOran[i - 1]) << donem;
  }
  for (std::size_t i = n; i < gv.GvLimit.size(); ++i) EXPECT_EQ(gv.GvOran[i].Sayi(), 0) << donem;
}

TEST(Mevzuat, EveryMonthIsSane) {
  for (const Lira lira : {Lira::Yeni, Lira::Eski}) {
    for (int yil = 2003; yil <= 2009; ++yil) {
      for (int ay = 1; ay <= 12; ++ay) {
        const std::string donem = std::to_string(yil) + "/" + std::to_string(ay);
        const YasalParametreler p = Yukle(yil, ay, lira);
        const YasalOranlar& o = p.oranlar;
        EXPECT_GT(o.AsgariUcret, Tutar()) << donem;
        EXPECT_GE(o.SskTaban, o.AsgariUcret) << donem;
        EXPECT_GE(o.SskTavan + Tutar::Hamdan(5), 5 * o.SskTaban) << donem << ": but for the rounding of both";
        EXPECT_LE(o.SskTavan, 7 * o.SskTaban) << donem;
        EXPECT_GT(o.KidemTavan, o.AsgariUcret) << donem;
        EXPECT_EQ(o.DamgaOran.Sayi(), 6) << donem;
        EXPECT_GE(o.MuafTavan, 12 * Yukle(yil, 1, lira).oranlar.AsgariUcret) << donem;
        EXPECT_TRUE(o.SakatIndirim[0] > o.SakatIndirim[1] && o.SakatIndirim[1] > o.SakatIndirim[2]) << donem;
        EXPECT_GT(o.SakatIndirim[2], Tutar()) << donem;
        TarifeSaglam(p.gv, lira, donem);
        EXPECT_EQ(p.agi.AgiKendisi.Sayi(), yil < 2008 ? 0 : 50) << donem;
        EXPECT_EQ(p.agi.AgiTaban, Yukle(yil, yil < 2008 ? ay : 1, lira).oranlar.AsgariUcret) << donem;
        EXPECT_EQ(Toplam(o.IsciOran[0]), 14) << donem;
        EXPECT_EQ(Toplam(o.IsverenOran[0]) + (yil * 12 + ay < 2008 * 12 + 10 ? 1.5 : 1), 19.5)
            << donem << ": the lowest class pays 19.5 in both eras";
      }
    }
  }
}

TEST(Mevzuat, PublishedAmounts) {
  // clang-format off
  const Sinamalar<int, int, double, double, double, double> durumlar{  // wage, floor, ceiling, severance ceiling
      {2003, 7, 306, 458.0158, 2290.0791, 1389.95}, {2004, 1, 423, 549.63, 2748.15, 1485.43},
      {2004, 12, 444.15, 444.15, 2886.975, 1574.74}, {2005, 6, 488.7, 488.7, 3176.7, 1648.9},
      {2005, 7, 488.7, 488.7, 3176.7, 1727.15}, {2006, 1, 531, 531, 3451.5, 1770.62},
      {2006, 9, 531, 531, 3451.5, 1857.44}, {2007, 2, 562.5, 562.5, 3656.4, 1960.69},
      {2007, 7, 585, 585, 3802.5, 2030.19}, {2008, 6, 608.4, 608.4, 3954.6, 2087.92},
      {2008, 9, 638.7, 638.7, 4151.7, 2173.18}, {2008, 10, 638.7, 638.7, 4151.7, 2173.18},
      {2009, 1, 666, 666, 4329, 2260.05}, {2009, 7, 693, 693, 4504.5, 2365.16}};
  // clang-format on
  for (const auto& [yil, ay, ucret, taban, tavan, kidem] : durumlar) {
    const YasalOranlar o = Yukle(yil, ay).oranlar;
    EXPECT_EQ((std::array{o.AsgariUcret, o.SskTaban, o.SskTavan, o.KidemTavan}),
              (std::array{Tutar(ucret), Tutar(taban), Tutar(tavan), Tutar(kidem)}))
        << yil << "/" << ay;
  }
  const YasalParametreler p = Yukle(2009, 7);
  EXPECT_EQ(p.gv.GvLimit[2], Tutar(50000.0));
  EXPECT_EQ(p.gv.GvLimit[3], Tutar(999'999'999.99));
  EXPECT_EQ(p.gv.GvOran[2].Sayi(), 27);
  EXPECT_EQ(p.agi, (AgiTablosu{Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(5), Tutar(666.0)}));
  EXPECT_EQ(p.oranlar.MuafTavan, Tutar(8154.0));
  EXPECT_EQ(p.oranlar.SakatIndirim, (std::array{Tutar(670.0), Tutar(330.0), Tutar(160.0)}));
}

// Law 1475, article 14: the ceiling changes with each half year, and holds in all of its months.
TEST(Mevzuat, SeveranceCeilingOfEveryHalfYear) {
  const Sinamalar<int, double, double> yillar{
      {2003, 1323.95, 1389.95}, {2004, 1485.43, 1574.74}, {2005, 1648.90, 1727.15}, {2006, 1770.62, 1857.44},
      {2007, 1960.69, 2030.19}, {2008, 2087.92, 2173.18}, {2009, 2260.05, 2365.16}};
  for (const auto& [yil, ilk, ikinci] : yillar)
    for (int ay = 1; ay <= 12; ++ay)
      EXPECT_EQ(Yukle(yil, ay).oranlar.KidemTavan, Tutar(ay <= 6 ? ilk : ikinci)) << yil << "/" << ay;
}

TEST(Mevzuat, OldLiraIsThePublishedAmountToTheLastLira) {
  for (const auto& [yil, ay, ucret, taban, tavan] : Sinamalar<int, int, std::int64_t, std::int64_t, std::int64_t>{
           {2003, 3, 306'000'000, 327'583'290, 1'637'916'450}, {2004, 7, 444'150'000, 444'150'000, 2'886'975'000}}) {
    const YasalOranlar o = Yukle(yil, ay, Lira::Eski).oranlar;
    EXPECT_EQ(o.AsgariUcret.Ham(), ucret * Tutar::Olcek);
    EXPECT_EQ(o.SskTaban.Ham(), taban * Tutar::Olcek);
    EXPECT_EQ(o.SskTavan.Ham(), tavan * Tutar::Olcek);
  }
  EXPECT_EQ(Yukle(2003, 1, Lira::Eski).gv.GvLimit[4], Tutar(120e9));
  EXPECT_EQ(Yukle(2003, 1, Lira::Eski).oranlar.SakatIndirim[0], Tutar(360e6));
}

TEST(Mevzuat, PremiumRatesOfTheBranches) {
  const auto satir = [](double ana, double has, double mal, double sgdp, double isz) {
    return OranSatiri{Tek(ana), Tek(has), Tek(mal), Tek(sgdp), Tek(isz)};
  };
  const OranSatiri yok;
  const OranSatiri isci = satir(0, 5, 9, 0, 1);
  const OranSatiri issizsiz = satir(0, 5, 9, 0, 0);
  // Employee and employer until 01.10.2008, then both from that day on.
  // clang-format off
  const Sinamalar<std::size_t, OranSatiri, OranSatiri, OranSatiri, OranSatiri> durumlar{
      {1, isci, satir(1, 6, 11, 0, 2), isci, satir(0, 7.5, 11, 0, 2)},
      {2, satir(0, 0, 0, 7.5, 0), satir(0, 0, 0, 22.5, 0), satir(0, 0, 0, 7.5, 0), satir(0, 0, 0, 22.5, 0)},
      {3, yok, yok, yok, yok}, {6, yok, yok, yok, yok},
      {4, isci, satir(1, 6, 13, 0, 2), yok, yok}, {5, isci, satir(1, 6, 13, 0, 2), yok, yok},
      {7, satir(0, 2, 0, 0, 0), satir(0, 2, 0, 0, 0), yok, yok},
      {13, issizsiz, satir(1, 6, 11, 0, 0), issizsiz, satir(0, 7.5, 11, 0, 0)},
      {28, yok, yok, isci, satir(0, 7.5, 12, 0, 2)}, {29, yok, yok, issizsiz, satir(0, 7.5, 12, 0, 0)},
      {30, yok, yok, isci, satir(0, 7.5, 12.5, 0, 2)}, {31, yok, yok, issizsiz, satir(0, 7.5, 12.5, 0, 0)},
      {32, yok, yok, isci, satir(0, 7.5, 14, 0, 2)}};
  // clang-format on
  const YasalOranlar eski = Yukle(2008, 9).oranlar;
  const YasalOranlar yeni = Yukle(2008, 10).oranlar;
  for (const auto& [dal, isciEski, isverenEski, isciYeni, isverenYeni] : durumlar) {
    EXPECT_EQ(eski.IsciOran[dal - 1], isciEski) << dal;
    EXPECT_EQ(eski.IsverenOran[dal - 1], isverenEski) << dal;
    EXPECT_EQ(yeni.IsciOran[dal - 1], isciYeni) << dal;
    EXPECT_EQ(yeni.IsverenOran[dal - 1], isverenYeni) << dal;
  }
  EXPECT_EQ(Yukle(2003, 1).oranlar.IsverenOran, eski.IsverenOran);
  EXPECT_EQ(Yukle(2009, 12).oranlar.IsverenOran, yeni.IsverenOran);
}

// How many figures there are under `j`; each must tell its certainty and its sources.
int KaynaklariDenetle(const Json& j, const std::set<std::string>& kesinlikler, const std::set<std::string>& kaynaklar) {
  int n = 0;
  if (j.is_object() && j.contains("deger")) {
    ++n;
    EXPECT_TRUE(kesinlikler.contains(j.value("kesinlik", ""))) << j;
    EXPECT_FALSE(j.value("kaynak", Json::array()).empty()) << j;
    for (const auto& kaynak : j["kaynak"]) EXPECT_TRUE(kaynaklar.contains(kaynak.get<std::string>())) << j;
  }
  if (j.is_structured())
    for (const auto& alt : j) n += KaynaklariDenetle(alt, kesinlikler, kaynaklar);
  return n;
}

TEST(Mevzuat, EveryFigureTellsCertaintyAndSources) {
  const Json kok = Json::parse(*DosyaOku(mevzuat + "kaynaklar.json"));
  std::set<std::string> kesinlikler, kaynaklar;
  for (const auto& [ad, anlam] : kok.at("kesinlikler").items()) kesinlikler.insert(ad);
  for (const auto& kaynak : kok.at("kaynaklar")) EXPECT_TRUE(kaynaklar.insert(kaynak.at("kimlik")).second) << kaynak;
  for (int i = 0; i < 14; ++i) {
    const std::string ad = std::to_string(2003 + i / 2) + (i % 2 == 0 ? "-1.json" : "-2.json");
    EXPECT_GE(KaynaklariDenetle(Json::parse(*DosyaOku(mevzuat + ad)), kesinlikler, kaynaklar), 8) << ad;
  }
}

TEST(Mevzuat, TablesOfTheSpecialExpenseRefund) {
  for (const auto& [yil, ilk, ikinci] :
       Sinamalar<int, double, double>{{2004, 3000, 6000}, {2005, 3300, 6600}, {2006, 3600, 7200}}) {
    const auto tablo = OzelGvMevzuati(mevzuat, yil, Lira::Eski);
    ASSERT_TRUE(tablo) << tablo.KusurMetni();
    EXPECT_EQ((std::array{tablo->GvLimit[0], tablo->GvLimit[1], tablo->GvLimit[2], tablo->GvLimit[3]}),
              (std::array{Tutar(ilk), Tutar(ikinci), AcikDilimLimiti(Lira::Yeni), Tutar()}))
        << yil;
    EXPECT_EQ((std::array{tablo->GvOran[0].Sayi(), tablo->GvOran[1].Sayi(), tablo->GvOran[2].Sayi()}),
              (std::array{8.0, 6.0, 4.0}));
  }
  for (const Lira lira : {Lira::Yeni, Lira::Eski})
    EXPECT_EQ(*OzelGvMevzuati(mevzuat, 2003, lira), Yukle(2003, 12, lira).gv) << "the year's income tax";
  for (const int yil : {2007, 2008, 2009})
    EXPECT_THAT(OzelGvMevzuati(mevzuat, yil).KusurMetni(), HasSubstr("özel gider indirimi tablosu yok"));
  EXPECT_THAT(OzelGvMevzuati(mevzuat, 2002).KusurMetni(), HasSubstr("Aralık 2002 için yasal parametre yok"));
}

TEST(Mevzuat, WhatIsMissingOrBrokenIsToldInTurkish) {
  EXPECT_THAT(MevzuatYukle(mevzuat, 2010, 1).KusurMetni(), HasSubstr("Ocak 2010 için yasal parametre yok"));
  EXPECT_THAT(MevzuatYukle(mevzuat, 2009, 13).KusurMetni(), HasSubstr("Dönem hatalı: 13/2009"));

  const test::GeciciDizin dizin;
  const Json saglam = Json::parse(*DosyaOku(mevzuat + "2009-2.json"));
  const auto boz = [&](const std::string& yer, const Json& deger) {
    Json bozuk = saglam;
    bozuk["donemler"][0][Json::json_pointer(yer)] = deger;
    return bozuk.dump();
  };
  for (const auto& [metin, ileti] :
       Sinamalar<std::string, const char*>{{"{\"donemler\": [", "bozuk"},
                                           {"[]", "donemler bilgisi yok"},
                                           {"{\"donemler\": 5}", "donemler bir liste değil"},
                                           {boz("/bit", "2009-07-31"), "01.08.2009 gününü kapsayan bir dönem yok"},
                                           {boz("/bas", "2009-02-30"), "bas bir tarih değil"},
                                           {boz("/asgariUcret", nullptr), "deger bilgisi yok"},
                                           {boz("/sskTavan/deger", 4504.5), "deger bir metin değil"},
                                           {boz("/sskTavan/deger", "4.504,50"), "deger bir tutar değil: \"4.504,50\""},
                                           {boz("/damgaBinde/deger", "altı"), "deger bir oran değil"},
                                           {boz("/gelirVergisi/dilimler", Json::array()), "1 ile 8 dilim"},
                                           {boz("/gelirVergisi/dilimler", Json(std::vector<int>(9))), "1 ile 8 dilim"},
                                           {boz("/primOranlari/0/dal", 33), "dal 1 ile 32 arasında olmalı"},
                                           {boz("/primOranlari/0/dal", 0), "dal 1 ile 32 arasında olmalı"}}) {
    ASSERT_TRUE(DosyaYaz(dizin.Yol() + "2009-2.json", metin));
    for (const Lira lira : {Lira::Yeni, Lira::Eski})
      EXPECT_THAT(MevzuatYukle(dizin.Yol(), 2009, 8, lira).KusurMetni(), HasSubstr(ileti));
  }
  ASSERT_TRUE(DosyaYaz(dizin.Yol() + "2009-2.json", boz("/bit", "2009-08-01")));
  EXPECT_TRUE(MevzuatYukle(dizin.Yol(), 2009, 8)) << "the last day belongs to the period";
}

RC_GTEST_PROP(Mevzuat, NoDamageToAFileBreaksTheLoader, ()) {
  const test::GeciciDizin dizin;
  std::string metin = *DosyaOku(mevzuat + "2008-2.json");
  for (int n = *rc::gen::inRange(1, 6); n > 0; --n) {
    const auto yer = *rc::gen::inRange<std::size_t>(0, metin.size());
    const auto boy = *rc::gen::inRange<std::size_t>(0, 30);
    metin.replace(yer, boy,
                  *rc::gen::element<std::string>("", "null", "[", "{", "}", "\"", "-9", "1e999", "\xff", ","));
  }
  RC_ASSERT(bool(DosyaYaz(dizin.Yol() + "2008-2.json", metin)));
  const auto p = MevzuatYukle(dizin.Yol(), 2008, 11, Lira::Eski);
  if (!p) RC_ASSERT(!p.KusurMetni().empty());
}

TEST(Mevzuat, TheEnvironmentNamesTheDirectory) {
  const auto baska = test::OrtamKoy("BELVANI_VERI_DIZIN", "/baska/yer");
  EXPECT_EQ(MevzuatDizini(), "/baska/yer/mevzuat/");
  const auto bos = test::OrtamKoy("BELVANI_VERI_DIZIN", "");
  EXPECT_TRUE(MevzuatYukle(MevzuatDizini(), 2009, 7)) << "a build for tests finds the shipped figures by itself";
}

}  // namespace
}  // namespace belvani
