// The shipped statutory figures: every month loads, is sane, and holds the published amounts.
#include "payroll/parametre/mevzuat.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>
#include <set>

#include "gecici.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using testing::HasSubstr;

const std::string mevzuat = test::KaynakYolu("data/mevzuat/");

YasalParametreler Yukle(int yil, int ay, Lira lira = Lira::Yeni) {
  const auto p = MevzuatYukle(mevzuat, yil, ay, lira);
  EXPECT_TRUE(p) << yil << "/" << ay << ": " << p.HataMetni();
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
        EXPECT_EQ(p.hesapTurleri, VarsayilanHesapTurleri());
        EXPECT_EQ(p.kanunlar, VarsayilanKanunlar());
      }
    }
  }
}

TEST(Mevzuat, PublishedAmounts) {
  const struct {
    int yil, ay;
    double ucret, taban, tavan, kidem;
  } durumlar[] = {
      {2003, 7, 306, 458.0158, 2290.0791, 1389.95},
      {2004, 1, 423, 549.63, 2748.15, 1485.43},
      {2004, 12, 444.15, 444.15, 2886.975, 1574.74},
      {2005, 6, 488.7, 488.7, 3176.7, 1648.9},
      {2005, 7, 488.7, 488.7, 3176.7, 1727.15},
      {2006, 1, 531, 531, 3451.5, 1770.62},
      {2006, 9, 531, 531, 3451.5, 1857.44},
      {2007, 2, 562.5, 562.5, 3656.4, 1960.69},
      {2007, 7, 585, 585, 3802.5, 2030.19},
      {2008, 6, 608.4, 608.4, 3954.6, 2087.92},
      {2008, 9, 638.7, 638.7, 4151.7, 2173.18},
      {2008, 10, 638.7, 638.7, 4151.7, 2173.18},
      {2009, 1, 666, 666, 4329, 2260.05},
      {2009, 7, 693, 693, 4504.5, 2365.16},
  };
  for (const auto& d : durumlar) {
    const YasalOranlar o = Yukle(d.yil, d.ay).oranlar;
    EXPECT_EQ(o.AsgariUcret, Tutar(d.ucret)) << d.yil << "/" << d.ay;
    EXPECT_EQ(o.SskTaban, Tutar(d.taban)) << d.yil << "/" << d.ay;
    EXPECT_EQ(o.SskTavan, Tutar(d.tavan)) << d.yil << "/" << d.ay;
    EXPECT_EQ(o.KidemTavan, Tutar(d.kidem)) << d.yil << "/" << d.ay;
  }
  const YasalParametreler p = Yukle(2009, 7);
  EXPECT_EQ(p.gv.GvLimit[2], Tutar(50000.0));
  EXPECT_EQ(p.gv.GvLimit[3], Tutar(999'999'999.99));
  EXPECT_EQ(p.gv.GvOran[2].Sayi(), 27);
  EXPECT_EQ(p.agi, (AgiTablosu{Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(5), Tutar(666.0)}));
  EXPECT_EQ(p.oranlar.MuafTavan, Tutar(8154.0));
  EXPECT_EQ(p.oranlar.SakatIndirim, (std::array{Tutar(670.0), Tutar(330.0), Tutar(160.0)}));
}

TEST(Mevzuat, OldLiraIsThePublishedAmountToTheLastLira) {
  const struct {
    int yil, ay;
    std::int64_t ucret, taban, tavan;
  } durumlar[] = {{2003, 3, 306'000'000, 327'583'290, 1'637'916'450},
                  {2003, 4, 306'000'000, 393'099'960, 1'965'499'800},
                  {2003, 12, 306'000'000, 458'015'820, 2'290'079'100},
                  {2004, 7, 444'150'000, 444'150'000, 2'886'975'000}};
  for (const auto& d : durumlar) {
    const YasalOranlar o = Yukle(d.yil, d.ay, Lira::Eski).oranlar;
    EXPECT_EQ(o.AsgariUcret.Ham(), d.ucret * Tutar::Olcek);
    EXPECT_EQ(o.SskTaban.Ham(), d.taban * Tutar::Olcek);
    EXPECT_EQ(o.SskTavan.Ham(), d.tavan * Tutar::Olcek);
    EXPECT_EQ(o.DamgaOran.Sayi(), 6) << "a rate has no unit";
  }
  EXPECT_EQ(Yukle(2003, 1, Lira::Eski).gv.GvLimit[4], Tutar(120e9));
  EXPECT_EQ(Yukle(2003, 1, Lira::Eski).oranlar.SakatIndirim[0], Tutar(360e6));
}

TEST(Mevzuat, PremiumRatesOfTheBranches) {
  const auto satir = [](double ana, double has, double mal, double sgdp, double isz) {
    return OranSatiri{Tek(ana), Tek(has), Tek(mal), Tek(sgdp), Tek(isz)};
  };
  const struct {
    int dal;
    OranSatiri isciEski, isverenEski, isciYeni, isverenYeni;  // until and from 01.10.2008
  } durumlar[] = {
      {1, satir(0, 5, 9, 0, 1), satir(1, 6, 11, 0, 2), satir(0, 5, 9, 0, 1), satir(0, 7.5, 11, 0, 2)},
      {2, satir(0, 0, 0, 7.5, 0), satir(0, 0, 0, 22.5, 0), satir(0, 0, 0, 7.5, 0), satir(0, 0, 0, 22.5, 0)},
      {3, {}, {}, {}, {}},
      {4, satir(0, 5, 9, 0, 1), satir(1, 6, 13, 0, 2), {}, {}},
      {5, satir(0, 5, 9, 0, 1), satir(1, 6, 13, 0, 2), {}, {}},
      {6, {}, {}, {}, {}},
      {7, satir(0, 2, 0, 0, 0), satir(0, 2, 0, 0, 0), {}, {}},
      {13, satir(0, 5, 9, 0, 0), satir(1, 6, 11, 0, 0), satir(0, 5, 9, 0, 0), satir(0, 7.5, 11, 0, 0)},
      {28, {}, {}, satir(0, 5, 9, 0, 1), satir(0, 7.5, 12, 0, 2)},
      {29, {}, {}, satir(0, 5, 9, 0, 0), satir(0, 7.5, 12, 0, 0)},
      {30, {}, {}, satir(0, 5, 9, 0, 1), satir(0, 7.5, 12.5, 0, 2)},
      {31, {}, {}, satir(0, 5, 9, 0, 0), satir(0, 7.5, 12.5, 0, 0)},
      {32, {}, {}, satir(0, 5, 9, 0, 1), satir(0, 7.5, 14, 0, 2)},
  };
  const YasalOranlar eski = Yukle(2008, 9).oranlar;
  const YasalOranlar yeni = Yukle(2008, 10).oranlar;
  for (const auto& d : durumlar) {
    const auto r = std::size_t(d.dal - 1);
    EXPECT_EQ(eski.IsciOran[r], d.isciEski) << d.dal;
    EXPECT_EQ(eski.IsverenOran[r], d.isverenEski) << d.dal;
    EXPECT_EQ(yeni.IsciOran[r], d.isciYeni) << d.dal;
    EXPECT_EQ(yeni.IsverenOran[r], d.isverenYeni) << d.dal;
  }
  EXPECT_EQ(Yukle(2003, 1).oranlar.IsverenOran, eski.IsverenOran);
  EXPECT_EQ(Yukle(2009, 12).oranlar.IsverenOran, yeni.IsverenOran);
}

// Certainty and sources of every object of a file that has a certainty; collects how many there are.
int KaynaklariDenetle(const Json& j, const std::set<std::string>& kesinlikler, const std::set<std::string>& kaynaklar) {
  int n = 0;
  if (j.is_object() && (j.contains("deger") || j.contains("kesinlik"))) {
    ++n;
    EXPECT_TRUE(kesinlikler.contains(j.value("kesinlik", ""))) << j;
    const Json& liste = j.value("kaynak", Json::array());
    EXPECT_FALSE(liste.empty()) << j;
    for (const auto& kaynak : liste) EXPECT_TRUE(kaynaklar.contains(kaynak.get<std::string>())) << j;
  }
  if (j.is_structured())
    for (const auto& alt : j) n += KaynaklariDenetle(alt, kesinlikler, kaynaklar);
  return n;
}

TEST(Mevzuat, EveryFigureTellsCertaintyAndSources) {
  const Json kok = Json::parse(std::ifstream(mevzuat + "kaynaklar.json"));
  std::set<std::string> kesinlikler, kaynaklar;
  for (const auto& [ad, anlam] : kok.at("kesinlikler").items()) kesinlikler.insert(ad);
  for (const auto& kaynak : kok.at("kaynaklar")) EXPECT_TRUE(kaynaklar.insert(kaynak.at("kimlik")).second) << kaynak;
  int dosya = 0;
  for (const auto& girdi : fs::directory_iterator(mevzuat)) {
    if (girdi.path().filename() == "kaynaklar.json") continue;
    ++dosya;
    EXPECT_GE(KaynaklariDenetle(Json::parse(std::ifstream(girdi.path())), kesinlikler, kaynaklar), 15) << girdi;
  }
  EXPECT_EQ(dosya, 14);
}

TEST(Mevzuat, WhatIsMissingOrBrokenIsToldInTurkish) {
  EXPECT_THAT(MevzuatYukle(mevzuat, 2010, 1).HataMetni(), HasSubstr("Ocak 2010 için yasal parametre yok"));
  EXPECT_THAT(MevzuatYukle(mevzuat, 2009, 13).HataMetni(), HasSubstr("Dönem hatalı: 13/2009"));
  EXPECT_THAT(MevzuatYukle(mevzuat, -2009, 1).HataMetni(), HasSubstr("Dönem hatalı"));

  const test::GeciciDizin dizin;
  Json saglam = Json::parse(std::ifstream(mevzuat + "2009-2.json"));
  const auto boz = [&](const std::string& isaretci, const Json& deger) {
    Json bozuk = saglam;
    bozuk[Json::json_pointer(isaretci)] = deger;
    return bozuk.dump();
  };
  const struct {
    std::string metin;
    const char* ileti;
  } durumlar[] = {
      {"", "bozuk"},
      {"{\"donemler\": [", "bozuk"},
      {"[]", "donemler bilgisi yok"},
      {"{\"donemler\": 5}", "donemler bir liste değil"},
      {"{\"donemler\": []}", "01.08.2009 gününü kapsayan bir dönem yok"},
      {boz("/donemler/0/bit", "2009-07-31"), "kapsayan bir dönem yok"},
      {boz("/donemler/0/bas", "2009-02-30"), "bas bir tarih değil"},
      {boz("/donemler/0/asgariUcret", nullptr), "deger bilgisi yok"},
      {boz("/donemler/0/sskTavan/deger", 4504.5), "deger bir metin değil"},
      {boz("/donemler/0/sskTavan/deger", "4.504,50"), "deger bir tutar değil: \"4.504,50\""},
      {boz("/donemler/0/sskTavan/deger", "99999999999999999999"), "deger bir tutar değil"},
      {boz("/donemler/0/damgaBinde/deger", "altı"), "deger bir oran değil"},
      {boz("/donemler/0/gelirVergisi/dilimler", Json::array()), "1 ile 8 dilim"},
      {boz("/donemler/0/gelirVergisi/dilimler", Json(std::vector<int>(9))), "1 ile 8 dilim"},
      {boz("/donemler/0/primOranlari/0/dal", 33), "dal 1 ile 32 arasında olmalı"},
      {boz("/donemler/0/primOranlari/0/dal", 0), "dal 1 ile 32 arasında olmalı"},
      {boz("/donemler/0/primOranlari/0/isci", 3), "ana bilgisi yok"},
      {boz("/donemler/0/agi", Json::object()), "kendisi bilgisi yok"},
  };
  for (const auto& d : durumlar) {
    std::ofstream(dizin.Yol() + "2009-2.json") << d.metin;
    for (const Lira lira : {Lira::Yeni, Lira::Eski}) {
      const auto p = MevzuatYukle(dizin.Yol(), 2009, 8, lira);
      ASSERT_FALSE(p) << d.ileti;
      EXPECT_THAT(p.HataMetni(), HasSubstr(d.ileti));
    }
  }
}

RC_GTEST_PROP(Mevzuat, NoDamageToAFileBreaksTheLoader, ()) {
  static const std::string saglam = [] {
    std::ifstream dosya(mevzuat + "2008-2.json");
    return std::string{std::istreambuf_iterator<char>(dosya), {}};
  }();
  const test::GeciciDizin dizin;
  std::string metin = saglam;
  const int n = *rc::gen::inRange(1, 6);
  for (int i = 0; i < n; ++i) {
    const auto yer = *rc::gen::inRange<std::size_t>(0, metin.size());
    const auto boy = *rc::gen::inRange<std::size_t>(0, 30);
    metin.replace(yer, boy,
                  *rc::gen::element<std::string>("", "null", "[", "{", "}", "\"", "-9", "1e999", "\xff", ","));
  }
  std::ofstream(dizin.Yol() + "2008-2.json") << metin;
  const auto p = MevzuatYukle(dizin.Yol(), 2008, 11, Lira::Eski);
  if (!p) RC_ASSERT(!p.HataMetni().empty());
}

TEST(Mevzuat, TheEnvironmentNamesTheDirectory) {
  setenv("BELVANI_VERI_DIZIN", "/baska/yer", 1);
  EXPECT_EQ(MevzuatDizini(), "/baska/yer/mevzuat/");
  setenv("BELVANI_VERI_DIZIN", "", 1);
  EXPECT_THAT(MevzuatDizini(), testing::EndsWith("/mevzuat/"));
  unsetenv("BELVANI_VERI_DIZIN");
  EXPECT_TRUE(MevzuatYukle(MevzuatDizini(), 2009, 7)) << "a build for tests finds the shipped figures by itself";
}

}  // namespace
}  // namespace belvani
