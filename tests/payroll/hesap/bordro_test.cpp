// Whole calculations, reckoned by hand. The person of Ornek in plain figures, 30 days, law 5510:
//   base 1,200.00 -> premium 168.00 and 12.00; tax base 1,020.00 -> tax 153.00; stamp duty 7.20; allowance 45.00 ->
//   net 1,200 - 168 - 12 - 153 - 7.20 + 45 = 904.80; employer 234.00 and 24.00.
// A case is two texts: what differs from that person, and what comes out ("net" is NetOdenen).
#include "payroll/hesap/bordro.h"

#include <functional>
#include <map>

#include "core/sayi.h"
#include "core/sinamalar.h"
#include "gecici.h"
#include "ornek.h"
#include "payroll/parametre/mevzuat.h"

namespace belvani {
namespace {

using test::Ornek;
using test::Sinamalar;
using Durumlar = Sinamalar<const char*, std::string_view, std::string_view>;

// "ucret 40, ucretags 1"
std::vector<std::pair<std::string_view, double>> Ciftler(std::string_view metin) {
  std::vector<std::pair<std::string_view, double>> ciftler;
  while (!metin.empty()) {
    const std::string_view cift = metin.substr(0, metin.find(','));
    const std::size_t bosluk = cift.rfind(' ');
    ciftler.emplace_back(cift.substr(0, bosluk), SayiOku(cift.substr(bosluk + 1)).value());
    metin.remove_prefix(std::min(metin.size(), cift.size() + 2));
  }
  return ciftler;
}

template <class Kayit>
bool Yaz(Kayit& kayit, std::string_view ad, double deger) {
  bool yazildi = false;
  Kayit::HerKolon([&](const auto& kolon) {
    using Uye = typename std::decay_t<decltype(kolon)>::UyeTuru;
    if (kolon.ad != ad) return;
    if constexpr (std::is_same_v<Uye, std::string>) kayit.*kolon.uye = SayiMetni(deger);
    if constexpr (std::is_constructible_v<Uye, double>) kayit.*kolon.uye = Uye(deger);
    yazildi = true;
  });
  return yazildi;
}

// Names that are no column of the card or the record. The card's columns come before the record's.
const std::map<std::string_view, std::function<void(Ornek&, double)>> digerleri{
    {"uygulama", [](Ornek& o, double d) { o.g.uygulama = int(d); }},
    {"IsSaati", [](Ornek& o, double d) { o.g.IsSaati = Tek(d); }},
    {"k1", [](Ornek& o, double d) { o.g.bayraklar.k[0] = std::uint8_t(d); }},
    {"k7", [](Ornek& o, double d) { o.g.bayraklar.k[6] = std::uint8_t(d); }},
    {"k8", [](Ornek& o, double d) { o.g.bayraklar.k[7] = std::uint8_t(d); }},
    {"k9", [](Ornek& o, double d) { o.g.bayraklar.k[8] = std::uint8_t(d); }},
    {"y1", [](Ornek& o, double d) { o.g.bayraklar.y[0] = std::uint8_t(d); }},
    {"muaf sabit",
     [](Ornek& o, double d) {
       o.yardimlar[0] = {1, "", 5, Tutar(d), Tek()};
     }},
    {"indir1 tipi", [](Ornek& o, double d) { o.indirimler[0] = test::Indirim(int(d), {}, {}); }},
    {"indir2 tipi", [](Ornek& o, double d) { o.indirimler[1] = test::Indirim(int(d), {}, {}); }},
    {"indir3 tipi", [](Ornek& o, double d) { o.indirimler[2] = test::Indirim(int(d), {}, {}); }},
    {"aidat yeri", [](Ornek& o, double d) { o.sendika = test::Birlik(int(d), Tek(1), {}); }},  // 1 %
    {"cocuklu es",
     [](Ornek& o, double d) {
       o.g.aile = {1, int(d), int(d)};
     }},
    {"AsgariUcret", [](Ornek& o, double d) { o.yasal.oranlar.AsgariUcret = Tutar(d); }},
    {"SskTaban", [](Ornek& o, double d) { o.yasal.oranlar.SskTaban = Tutar(d); }},
    {"mal", [](Ornek& o, double d) { o.yasal.oranlar.IsverenOran[0].mal = Tek(d); }},
};

void Denetle(const Durumlar& durumlar) {
  for (const auto& [ad, girdi, beklenen] : durumlar) {
    Ornek o;
    for (const auto& [alan, deger] : Ciftler(girdi))
      if (!Yaz(o.sicil, alan, deger) && !Yaz(o.g.giris, alan, deger)) digerleri.at(alan)(o, deger);
    ASSERT_FALSE(GirdiKusuru(o.Girdi())) << ad;
    const BordroSonucu s = o.Hesapla();
    for (const auto& [alan, deger] : Ciftler(beklenen)) {
      Brd olmali = s.brd;
      if (alan == "net")
        EXPECT_EQ(OndalikMetin(s.NetOdenen), OndalikMetin(Tutar(deger))) << ad;
      else
        EXPECT_TRUE(Yaz(olmali, alan, deger) && olmali == s.brd) << ad << ": " << alan << " is not " << deger;
    }
  }
}

TEST(Bordro, WageTermsAndDayLines) {
  // clang-format off
  Denetle({
      {"plain month", "",
       "net 904.80, ucret 1200, brutkaz 1200, sskmatrah 1200, sskkesinti 168, issizisci 12, gvmatrah 1020, gvtutar 153, "
       "dvmatrah 1200, dvtutar 7.20, ogv 45, agioran 50, sskmatrahisveren 1200, sskkesintiisveren 234, "
       "issizisveren 24, katki 0, ucrizmatrah 0, agimatrah 600, yuvarlama 0, brdkanun 0"},
      // 33.3333 × 30 = 999.999: only the stamp-duty base keeps it.
      {"a third of a kuruş", "ucret 1000",
       "net 761.50, ucret 1000, sskmatrah 1000, gvmatrah 850, dvmatrah 999.999, dvtutar 6"},
      {"daily wage", "ucret 40, ucretags 1", "net 904.80, ucret 1200"},
      {"hourly wage", "ucret 4, ucretags 2, IsSaati 7.5", "net 689.85, ucret 900"},
      {"other wage basis: monthly", "ucretags 3", "net 904.80"},
      {"minimum wage, whatever the card says", "ucrettipi 2", "net 474.90, ucret 600"},
      {"other wage type: gross", "ucrettipi 3", "net 904.80"},
      // 1,200 - 180 - 153 - 7.20
      {"net wage", "ucrettipi 1, ucret 859.80", "net 904.80, ucret 1200"},
      // 1,200 - 180 - 7.20; the employer's base is the floor all the same.
      {"net wage, no social security", "ucrettipi 1, ucret 1012.80, tur 1",
       "net 1057.80, ucret 1200, sskmatrah 0, sskkesinti 0, sskmatrahisveren 600, sskkesintiisveren 117"},
      {"no days keep the wage", "ng 0, ht 0", "net 0, ucret 1200, brutkaz 0, ogv 0"},
      // Only 10 h × 1.5 × 5 = 75 and the 100 are gross; tax base 1,275 - 11.25, tax 189.56, stamp duty 7.65.
      {"days on a line without the base flag", "ng 30, ht 0, k1 13, fm1 10, yrd01 100",
       "net 11.54, ucret 1200, brutkaz 175, topyardim 100, sskmatrah 75, gvmatrah 1263.75, dvmatrah 1275"},
      // 75 in the premium base, 5 h × 2 × 5 = 50 in the tax bases, 2 h × 2.5 × 5 = 25 in none: tax base 1,250 - 191.25.
      {"overtime", "fm1 10, fm2 5, fm3 2, k7 2, k8 12, k9 0",
       "net 1037.44, brutkaz 1350, ucret 1200, sskmatrah 1275, gvmatrah 1058.75, dvmatrah 1250, gvtutar 158.81"},
      {"negative allowance empties the tax bases", "yrd01 -2000, y1 12",
       "net -980, brutkaz -800, gvmatrah 0, dvmatrah 0, gvtutar 0, dvtutar 0, ogv 0"},
  });
  // clang-format on
}

// 7,800 is 260 a day, twice the ceiling.
TEST(Bordro, CeilingsFloorsAndPaidLeave) {
  // clang-format off
  Denetle({
      // Ceiling of 15 days 1,950; tax base 3,900 - 273 - 19.50, tax 541.13, stamp duty 23.40.
      {"half a month above the first ceiling", "ucret 7800, ng 10, ht 0, ui 5",
       "net 3087.97, brutkaz 3900, sskmatrah 1950, ucrizmatrah 650, sskmatrahisveren 1950"},
      // 7,900 - 540.40 - 38.60 - 1,083.15 - 46.80 + 45
      {"an exemption comes off after the first ceiling", "ucret 7800, yrd01 100, y1 16, muaf sabit 40",
       "net 6236.05, sskmatrah 3860, muaftutar 40, brutkaz 7900, gvmatrah 7221"},
      // 7,900 - 546 - 39 - 1,082.25 - 46.80 + 45
      {"second ceiling", "ucret 7800, yrd01 100, y1 2", "net 6230.95, sskmatrah 3900, topyardim 100"},
      // 5,000 - 546 - 39 - 662.25 - 30 + 45
      {"no days: the whole ceiling", "ng 0, ht 0, yrd01 5000, y1 14",
       "net 3767.75, sskmatrah 3900, sskmatrahisveren 3900, brutkaz 5000"},
      {"below the floor, era 4", "ucret 450, ng 24, ht 0, ui 6",
       "net 367.42, ucrizmatrah 120, sskmatrah 450, sskmatrahisveren 600, sskkesintiisveren 117"},
      // 87.75 - 6 × 15 × 1 %
      {"below the floor, era 1", "ucret 450, ng 24, ht 0, ui 6, uygulama 1",
       "net 322.42, ucrizmatrah 90, sskmatrahisveren 450, katki 150, ogv 0, sskkesintiisveren 86.85"},
      {"below the floor, era 2: the employer bears 21.00 and 1.50", "ucret 450, uygulama 0",
       "net 322.42, sskmatrahisveren 600, sskkesintiisveren 138, issizisveren 13.50, katki 0, ogv 0"},
      // 5 × 20.0023 = 100.0115 lies below 5 × 20.0025 = 100.0125, though not below 100.01: 2 × 20.0025 = 40.005.
      {"the floor of paid leave is compared unrounded", "ucret 600.07, ng 3, ht 0, ui 2, SskTaban 600.075",
       "ucrizmatrah 40.01"},
      {"no days in an era with relief", "ng 0, ht 0, uygulama 2, yrd01 100, y1 2",
       "net 85, sskmatrahisveren 100, sskkesintiisveren 19.50, gvmatrah 0"},
  });
  // clang-format on
}

TEST(Bordro, DeductionsAllowanceAndDues) {
  // clang-format off
  Denetle({
      // 1,020 - 600 = 420 taxed; the base carried on stays 1,020.
      {"disability, first degree", "sakatdrc 1", "net 994.80, sakindir 600, gvtutar 63, gvmatrah 1020"},
      {"second degree, half a month", "sakatdrc 2, ng 15, ht 0", "net 497.40, sakindir 150, gvtutar 54"},
      {"third degree", "sakatdrc 3", "net 927.30, sakindir 150"},
      {"more than the base stays unused", "sakatdrc 1, ucret 300", "net 253.20, sakindir 255, gvtutar 0, ogv 0"},
      // 600 disability; pension 120 (a tenth), insurance 60 (a twentieth), military service the 240 left of 1,020.
      {"deductions in order",
       "sakatdrc 1, indirim1 1, indirim2 1, indirim3 1, indtut1 500, indtut2 500, indtut3 500, indir1 tipi 1, "
       "indir2 tipi 2, indir3 tipi 4",
       "net 1012.80, indirim1 120, indirim2 60, indirim3 240, gvtutar 0, gvmatrah 1020"},
      {"no row, or switched off", "indirim1 1, indtut1 50, indtut2 50, indir2 tipi 1",
       "net 904.80, indirim1 0, indirim2 0"},
      // 500 × 15 % + 520 × 20 %
      {"crossing a bracket", "devgvmatrah 9500", "net 878.80, gvtutar 179"},
      {"family of three children: 80 %", "cocuklu es 3", "net 931.80, agioran 80, ogv 72"},
      {"allowance switched off", "agi 0, cocuklu es 3", "net 859.80, agioran 50, ogv 0"},
      {"no allowance before era 3", "uygulama 2, cocuklu es 3", "net 859.80, agioran 50, ogv 0"},
      {"allowance in era 3", "uygulama 3", "net 904.80, ogv 45"},
      // 904.80 × 1 %: the net with the allowance, before the debt.
      {"dues of net and a debt", "aidat yeri 1, borckes 100", "net 795.75, sendika 9.05, yuvarlama 109.05"},
      {"dues of the wage, not of the gross", "aidat yeri 4, yrd01 100", "net 992.80, sendika 12"},
      {"rates typed over", "sskiscior 7.5, damgaveror 0", "net 978.30, sskkesinti 90, gvtutar 164.70"},
      {"law 5510", "kanun 5510", "net 904.80, katki 60, brdkanun 5510"},
      {"law 5510 without an invalidity rate", "kanun 5510, mal 0", "katki 0"},
      {"law 5510 with a rate too small for a kuruş", "kanun 5510, mal 0.0004", "katki 0"},
  });
  // clang-format on
}

// Law 3308: at least a third of the minimum wage, free of premium and tax.
TEST(Bordro, Apprentice) {
  // clang-format off
  Denetle({
      {"without a wage", "sskdurum 6, ucret 0",
       "net 200, brutkaz 200, sskmatrah 200, ucret 200, sskkesinti 0, issizisci 0, gvmatrah 0, gvtutar 0, dvtutar 0, "
       "dvmatrah 200.001, katki 0, ogv 0, sskmatrahisveren 0, sskkesintiisveren 0, issizisveren 0"},
      {"a kuruş below the third", "sskdurum 6, ucret 199.99", "net 200, ucret 200"},
      {"above the third", "sskdurum 6, ucret 300", "net 300, ucret 300"},
      {"minimum wage", "sskdurum 6, ucret 900, ucrettipi 2", "net 200, ucret 200"},
      {"an uneven third", "sskdurum 6, ucret 0, AsgariUcret 500", "net 166.67, ucret 166.67"},
      {"others have no such floor", "sskdurum 5, ucret 199.99", "net 168.79, ucret 199.99"},
      // Dues of 1 % of the gross of 700 that he would have had.
      {"lines outside the base are lost, dues and debt are not",
       "sskdurum 6, ucret 600, yrd01 100, borckes 10, aidat yeri 3",
       "net 583, brutkaz 600, topyardim 100, sendika 7, yuvarlama 17"},
  });
  // clang-format on
}

// The worked example of bordro.h, on the shipped figures.
TEST(Bordro, MinimumWageOfJuly2009) {
  const auto yasal = MevzuatYukle(test::KaynakYolu("data/mevzuat/"), 2009, 7);
  ASSERT_TRUE(yasal) << yasal.KusurMetni();
  Ornek o;
  o.yasal = *yasal;
  o.sicil.ucret = Tutar(693);
  o.g.uygulama = UygulamaBul(yasal->kanunlar, 7, 2009);
  const BordroSonucu s = o.Hesapla();
  Brd olmali = s.brd;
  for (const auto& [alan, deger] :
       Ciftler("sskmatrah 693, sskkesinti 97.02, issizisci 6.93, gvmatrah 589.05, gvtutar 88.36, ogv 49.95, "
               "dvtutar 4.16, agimatrah 666, issizisveren 13.86, sskkesintiisveren 135.14"))
    EXPECT_TRUE(Yaz(olmali, alan, deger) && olmali == s.brd) << alan;
  EXPECT_EQ(s.NetOdenen, Tutar(546.48));
}

TEST(BordroHesapla, CountsTheDaysBeforeItCalculates) {
  Ornek o;
  Sablon sablon = VarsayilanSablon();
  sablon.SablonYardim = {Tutar(130), Tutar(130), Tutar(130)};
  sablon.SablonYardimTip = {0, 1, 2};
  o.g.giris.yrd01 = o.g.giris.yrd02 = Tutar(7);
  const BordroSonucu tam = BordroHesapla(o.Girdi(), &sablon);  // as many days as he may work
  EXPECT_EQ(std::tuple(tam.gunFazla, tam.SskGun, tam.brd.brutkaz), std::tuple(false, 30, Tutar(1467)));
  EXPECT_EQ(std::tuple(tam.brd.yrd01, tam.brd.yrd02, tam.brd.yrd03), std::tuple(Tutar(7), Tutar(130), Tutar(130)));
  o.g.CalismaGun = 29;
  const BordroSonucu fazla = BordroHesapla(o.Girdi(), &sablon);
  EXPECT_EQ(std::tuple(fazla.gunFazla, fazla.SskGun, fazla.NetOdenen), std::tuple(true, 30, Tutar()));
  EXPECT_EQ(fazla.brd, o.g.giris);
  Iz iz;
  o.g.CalismaGun = 30;
  EXPECT_EQ(BordroHesapla(o.Girdi(), nullptr, &iz).brd.yrd01, Tutar(7));
  EXPECT_FALSE(iz.empty());
}

TEST(GirdiKusuru, RefusesWhatHasNoRule) {
  const char* const saatKusuru = "Günlük iş saati sıfırdan büyük olmalı";
  const Sinamalar<int, int, double, const char*, AlanTutamagi> durumlar{
      {3, 31, 0.5, "", {}},
      {4, 0, 8, "Sakatlık derecesi 0 ile 3 arasında olmalı", sicil::sakatdrc},
      {0, 32, 8, "SSK durumu 32 için prim oranı yok (0 ile 31 arasında olmalı)", sicil::sskdurum},
      {0, 0, 0, saatKusuru, {}},
      {0, 0, -8, saatKusuru, {}},
  };
  for (const auto& [derece, dal, saat, metin, alan] : durumlar) {
    Ornek o;
    o.sicil.sakatdrc = std::uint8_t(derece);
    o.sicil.sskdurum = std::uint8_t(dal);
    o.g.IsSaati = Tek(saat);
    const auto kusur = GirdiKusuru(o.Girdi());
    EXPECT_EQ(kusur ? kusur->metin : "", metin);
    EXPECT_TRUE(!kusur || kusur->alan == alan) << metin;
  }
}

}  // namespace
}  // namespace belvani
