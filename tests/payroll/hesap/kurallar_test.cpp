// Single rules: exemption, deductions, allowance, union dues, template, the employer's side.
#include "core/sinamalar.h"
#include "ornek.h"
#include "payroll/hesap/indirim.h"
#include "payroll/hesap/isveren.h"
#include "payroll/hesap/muafiyet.h"
#include "payroll/hesap/sablonyay.h"
#include "payroll/hesap/sendikaaidati.h"

namespace belvani {
namespace {

using test::Sinamalar;
const Yuvarlayici yuvarla(2);

// Daily floor 600 / 30 = 20; 10 % of it is 2 a day. Law 506, article 77.
TEST(MuafHesapla, LimitOfEachKind) {
  struct Durum {
    const char* ad;
    int indtip;
    double oran, sabit, tutar;
    int ng, SskGun, cocuk;
    double once, sonra;
  };
  const Durum durumlar[] = {
      {"none", 0, 10, 50, 100, 26, 30, 2, 7, 7},
      {"days worked: equal to the limit", 1, 10, 0, 52, 26, 30, 0, 7, 59},
      {"days worked: a kuruş above", 1, 10, 0, 52.01, 26, 30, 0, 0, 52},
      {"days worked: a kuruş below", 1, 10, 0, 51.99, 26, 30, 0, 0, 51.99},
      {"days worked: none", 1, 10, 0, 100, 0, 30, 0, 7, 7},
      {"days worked without premium days still counts", 1, 10, 0, 100, 1, 0, 0, 0, 2},
      {"children: one", 2, 2, 0, 100, 26, 30, 1, 0, 12},
      {"children: two", 2, 2, 0, 100, 26, 30, 2, 0, 24},
      {"children: two at most", 2, 2, 0, 100, 26, 30, 3, 0, 24},
      {"children: none", 2, 2, 0, 100, 26, 30, 0, 7, 7},
      {"children: no premium days", 2, 2, 0, 100, 26, 0, 2, 7, 7},
      {"all days: equal", 3, 10, 0, 60, 26, 30, 0, 0, 60},
      {"all days: above", 3, 10, 0, 60.01, 26, 30, 0, 0, 60},
      {"all days: one day", 3, 10, 0, 60, 0, 1, 0, 7, 9},
      {"all days: no premium days", 3, 10, 0, 60, 5, 0, 0, 7, 7},
      {"rate replaces what was given", 4, 30, 0, 100, 26, 30, 0, 70, 30},
      {"rate of nothing clears", 4, 30, 0, 0, 26, 30, 0, 70, 0},
      {"rate: no premium days", 4, 30, 0, 100, 26, 0, 0, 70, 70},
      {"fixed adds to a rate's part", 5, 0, 50, 100, 26, 30, 0, 30, 80},
      {"fixed: equal", 5, 0, 50, 50, 26, 30, 0, 0, 50},
      {"fixed: below, money-rounded", 5, 0, 50, 49.995, 26, 30, 0, 0, 50},
      {"fixed: four-decimal limit stands", 5, 0, 12.3456, 100, 26, 30, 0, 0, 12.3456},
      {"fixed: no premium days", 5, 0, 50, 100, 26, 0, 0, 7, 7},
      {"unknown kind", 6, 10, 50, 100, 26, 30, 2, 7, 7},
      {"negative amount is below every limit", 3, 10, 0, -20, 26, 30, 0, 7, -13},
  };
  for (const Durum& d : durumlar) {
    const Muaf tanim{
        .no = 1, .adi = "", .indtip = std::uint8_t(d.indtip), .sabit = Tutar(d.sabit), .oran = Tek(d.oran)};
    const Tutar sonra =
        MuafHesapla({Tutar(d.tutar), tanim, d.ng, d.SskGun, d.cocuk, Tutar(600)}, Tutar(d.once), yuvarla);
    EXPECT_EQ(sonra, Tutar(d.sonra)) << d.ad;
  }
  // 531.00 / 30 × 10 % × 30
  EXPECT_EQ(MuafHesapla({Tutar(60), {1, "", 3, Tutar(), Tek(10)}, 30, 30, 0, Tutar(531)}, Tutar(), yuvarla),
            Tutar(53.1));
}

// Income tax law, article 63/3: 10 % of the gross (personal insurance 5 %), yearly ceiling 7,200.
TEST(IndirimHesapla, AmountsLimitsAndYearlyCeiling) {
  struct Durum {
    const char* ad;
    int indtip;
    double kisi, sabit, oran, gvmatrah, brutkaz, yil, kalan, sonuc;
  };
  const Durum durumlar[] = {
      {"personal insurance: a twentieth", 2, 100, 0, 0, 850, 1000, 0, 850, 50},
      {"a kuruş below the twentieth", 2, 49.99, 0, 0, 850, 1000, 0, 850, 49.99},
      {"pension: a tenth", 1, 150, 0, 0, 850, 1000, 0, 850, 100},
      {"both: a tenth", 3, 150, 0, 0, 850, 1000, 0, 850, 100},
      {"the limit is money-rounded", 1, 150, 0, 0, 850, 1000.05, 0, 850, 100.01},
      {"fixed amount", 1, 0, 30, 5, 850, 1000, 0, 850, 30},
      {"own amount before the fixed", 1, 20, 30, 5, 850, 1000, 0, 850, 20},
      {"rate of the tax base", 1, 0, 0, 5, 850.10, 1000, 0, 850, 42.51},  // 42.505
      {"yearly ceiling reached exactly", 1, 100, 0, 0, 850, 1000, 7100, 850, 100},
      {"a kuruş above loses the month", 1, 100, 0, 0, 850, 1000, 7100.01, 850, 0},
      {"the ceiling looks at the limited amount", 2, 900, 0, 0, 850, 1000, 7150, 850, 50},
      {"negative amount", 1, -5, 0, 0, 850, 1000, 0, 850, 0},
      {"equal to what is left", 1, 80, 0, 0, 850, 1000, 0, 80, 80},
      {"more than what is left", 1, 80, 0, 0, 850, 1000, 0, 79.99, 79.99},
      {"nothing left", 1, 80, 0, 0, 850, 1000, 0, 0, 0},
      {"military service: no limits", 4, 500, 30, 5, 850, 1000, 99999, 850, 500},
      {"military service: own amount alone", 4, 0, 30, 5, 850, 1000, 0, 850, 0},
      {"military service: what is left", 4, 900, 0, 0, 850, 1000, 0, 850, 850},
      {"military service: negative", 4, -5, 0, 0, 850, 1000, 0, 850, 0},
      {"none", 0, 100, 30, 5, 850, 1000, 0, 850, 0},
      {"unknown", 5, 100, 30, 5, 850, 1000, 0, 850, 0},
  };
  for (const Durum& d : durumlar) {
    const Indir tanim = test::Indirim(d.indtip, Tutar(d.sabit), Tek(d.oran));
    EXPECT_EQ(IndirimHesapla({tanim, Tutar(d.kisi), Tutar(d.gvmatrah), Tutar(d.brutkaz), Tutar(d.yil), Tutar(7200),
                              Tutar(d.kalan)},
                             yuvarla),
              Tutar(d.sonuc))
        << d.ad;
  }
}

// Income tax law, article 32.
TEST(Agi, PercentOfTheFamilyAndTheTaxAsLimit) {
  const AgiTablosu tablo{Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(4), Tutar(666)};
  const Sinamalar<int, int, double> oranlar{{0, 0, 50}, {1, 0, 60}, {2, 0, 60}, {0, 1, 57.5}, {1, 2, 75},
                                            {1, 3, 80}, {0, 3, 70}, {1, 4, 84}, {1, 5, 84},   {0, 9, 74}};
  for (const auto& [es, cocuk, oran] : oranlar)
    EXPECT_EQ(AgiOrani(tablo, {.agiEs = es, .agiCocuk = cocuk, .cocuk = 9}), Tek(oran)) << es << "+" << cocuk;
  const Sinamalar<double, double, double, double> tutarlar{{50, 15, 500, 49.95},  // 666 × 50 % × 15 %
                                                           {75, 15, 500, 74.93},  // 74.925
                                                           {50, 15, 49.95, 49.95}, {50, 15, 49.94, 49.94},
                                                           {50, 15, 0, 0},         {50, 20, 500, 66.6}};
  for (const auto& [oran, dilim, vergi, ogv] : tutarlar)
    EXPECT_EQ(AgiHesapla(tablo, Tek(oran), Tek(dilim), Tutar(vergi), yuvarla), Tutar(ogv)) << oran << ", " << vergi;
  Aile aile;  // spouse that counts, spouse that does not, a parent, children
  for (const auto& [yakinlik, agiok] : {std::pair(1, 1), {1, 0}, {3, 1}, {4, 1}, {5, 0}, {6, 1}, {4, 2}})
    aile.Ekle(yakinlik, agiok);
  EXPECT_EQ(std::tuple(aile.agiEs, aile.agiCocuk, aile.cocuk), std::tuple(1, 2, 4));
}

TEST(SendikaHesapla, SourceFloorCeilingAndNet) {
  struct Durum {
    const char* ad;
    int yer;
    double oran, sabit, taban, tavan, net, aidat;
  };
  const Durum durumlar[] = {
      {"fixed", 0, 2, 25, 0, 0, 900, 25},
      {"of net, money-rounded", 1, 1, 25, 0, 0, 904.85, 9.05},
      {"of the base", 2, 1, 25, 0, 0, 900, 11},
      {"of gross", 3, 1, 25, 0, 0, 900, 12},
      {"of wage", 4, 1, 25, 0, 0, 900, 13},
      {"unknown source: fixed", 5, 2, 25, 0, 0, 900, 25},
      {"below the floor", 0, 0, 25, 30, 0, 900, 30},
      {"above the ceiling", 0, 0, 25, 0, 20, 900, 20},
      {"the ceiling has the last word", 0, 0, 25, 40, 35, 900, 35},
      {"negative limits say nothing", 0, 0, 25, -1, -1, 900, 25},
      {"equal to the net", 0, 0, 25, 0, 0, 25, 25},
      {"a kuruş more than the net", 0, 0, 25, 0, 0, 24.99, 0},
      {"the floor exceeds the net", 0, 0, 50, 60, 0, 55, 0},
      {"negative net", 1, 1, 0, 0, 0, -50, 0},
  };
  for (const Durum& d : durumlar)
    EXPECT_EQ(SendikaHesapla(test::Birlik(d.yer, Tek(d.oran), Tutar(d.sabit), Tutar(d.taban), Tutar(d.tavan)),
                             {Tutar(d.net), Tutar(1100), Tutar(1200), Tutar(1300)}, yuvarla),
              Tutar(d.aidat))
        << d.ad;
}

TEST(SablonYardimi, SpreadsOverDays) {
  Sablon sablon = VarsayilanSablon();
  sablon.SablonYardim.fill(Tutar(130));
  sablon.SablonYardimTip = {0, 1, 2, 3};
  const auto yay = [&](int i, int SskGun, int ng) { return SablonYardimi(sablon, i, SskGun, ng, yuvarla); };
  EXPECT_EQ(yay(0, 15, 13), std::nullopt);
  EXPECT_EQ(yay(1, 15, 13), Tutar(65));   // 130 / 30 × 15
  EXPECT_EQ(yay(1, 7, 0), Tutar(30.33));  // 30.3333
  EXPECT_EQ(yay(2, 15, 13), Tutar(65));   // 130 / 26 × 13
  EXPECT_EQ(yay(2, 15, 0), Tutar());
  EXPECT_EQ(yay(3, 15, 13), std::nullopt);
  sablon.SablonGun = {Tek(0), Tek(10), Tek(0), Tek(0), Tek(0), Tek(3), Tek(40)};  // hours are no days
  EXPECT_EQ(yay(1, 26, 1), Tutar(260));
  EXPECT_EQ(yay(2, 26, 1), Tutar());
  sablon.SablonGun = {};
  EXPECT_EQ(yay(1, 26, 1), Tutar());
}

// Floor 600, base 1,200 or below the floor, employee 14 + 1, employer 19.5 + 2.
struct IsverenDurumu {
  const char* ad;
  int uygulama;
  double sskmatrah;
  int SskGun, ui, kanun;
  double matrah, prim, issizlik, katki;
};

TEST(IsverenPayi, ByEra) {
  const IsverenDurumu durumlar[] = {
      {"above the floor, 1", 1, 1200, 30, 0, 0, 1200, 234, 24, 0},
      {"relief 6 × 40 × 1.5 % = 3.60, 1", 1, 1200, 30, 6, 0, 1200, 230.4, 24, 0},
      {"relief, 2", 2, 1200, 30, 6, 0, 1200, 230.4, 24, 0},
      {"relief, 3", 3, 1200, 30, 6, 14447, 1200, 230.4, 24, 0},
      {"no relief, 4", 4, 1200, 30, 6, 0, 1200, 234, 24, 0},
      {"relief to four decimals: 195.06 - 0.500165", 3, 1000.33, 30, 1, 0, 1000.33, 194.5598, 20.01, 0},
      {"below the floor: a top-up, 1", 1, 300, 30, 0, 0, 300, 58.5, 6, 300},
      {"raised with the employee's 42 and 3, 2", 2, 300, 30, 0, 0, 600, 159, 15, 0},
      {"raised, 3", 3, 300, 30, 0, 14447, 600, 117, 12, 0},
      {"raised, 4", 4, 300, 30, 0, 0, 600, 117, 12, 0},
      {"on the floor, 1", 1, 600, 30, 0, 0, 600, 117, 12, 0},
      {"on the floor, 2", 2, 600, 30, 0, 0, 600, 117, 12, 0},
      {"part month below, 2", 2, 299.99, 15, 0, 0, 300, 58.5, 6, 0},
      {"no days, 1", 1, 0, 0, 3, 0, 0, 0, 0, 0},
      {"no days, 2", 2, 100, 0, 3, 0, 100, 19.5, 2, 0},
      {"no days, 3", 3, 100, 0, 3, 0, 100, 19.5, 2, 0},
      {"unemployment in four decimals, 1", 1, 1000.33, 30, 0, 0, 1000.33, 195.06, 20.0066, 0},
      {"unemployment in four decimals, 2", 2, 1000.33, 30, 0, 0, 1000.33, 195.06, 20.0066, 0},
      {"unemployment money-rounded, 3", 3, 1000.33, 30, 0, 0, 1000.33, 195.06, 20.01, 0},
      {"unemployment money-rounded, 4", 4, 1000.33, 30, 0, 0, 1000.33, 195.06, 20.01, 0},
      {"law 5510: five points", 4, 1200, 30, 0, 5510, 1200, 234, 24, 60},
      {"on the raised base", 4, 300, 30, 0, 5510, 600, 117, 12, 30},
      {"the share on the floor", 4, 1200, 30, 0, 5921, 1200, 234, 24, 117},
      {"the share on the floor of the days", 4, 1200, 15, 0, 44479, 1200, 234, 24, 58.5},
      {"first year", 4, 1200, 30, 0, 14447, 1200, 234, 24, 234},
      {"second", 4, 1200, 30, 0, 24447, 1200, 234, 24, 187.2},
      {"third", 4, 1200, 30, 0, 34447, 1200, 234, 24, 140.4},
      {"fourth", 4, 1200, 30, 0, 44447, 1200, 234, 24, 93.6},
      {"fifth", 4, 1200, 30, 0, 54447, 1200, 234, 24, 46.8},
      {"other law", 4, 1200, 30, 0, 4447, 1200, 234, 24, 0},
      {"no such law before, 2", 2, 1200, 30, 0, 5510, 1200, 234, 24, 0},
  };
  for (const IsverenDurumu& d : durumlar) {
    IsverenGirdisi g;
    g.SskGun = d.SskGun;
    g.ui = d.ui;
    g.sskmatrah = Tutar(d.sskmatrah);
    g.sskkesinti = yuvarla(d.sskmatrah * 14 / 100);
    g.issizisci = yuvarla(d.sskmatrah * 1 / 100);
    g.sskiscior = Tek(14);
    g.issiziscior = Tek(1);
    g.sskisverenor = Tek(19.5);
    g.issizisverenor = Tek(2);
    g.SskTaban = Tutar(600);
    g.TehlikeOran = Tek(1.5);
    g.malulluk = Tek(11);
    g.kanun = d.kanun;
    const IsverenSonucu s = IsverenPayi(g, UygulamaSec(d.uygulama), yuvarla);
    EXPECT_EQ(s.sskmatrahisveren, Tutar(d.matrah)) << d.ad;
    EXPECT_EQ(s.sskkesintiisveren, Tutar(d.prim)) << d.ad;
    EXPECT_EQ(s.issizisveren, Tutar(d.issizlik)) << d.ad;
    EXPECT_EQ(s.katki, Tutar(d.katki)) << d.ad;
  }
}

}  // namespace
}  // namespace belvani
