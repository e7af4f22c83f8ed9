// Severance and notice: the borders of the rules, reckoned by hand, and a second telling over thousands of people.
#include "payroll/hesap/tazminat.h"

#include <gmock/gmock.h>
#include <random>

#include "core/sinamalar.h"
#include "kahin.h"

namespace belvani {
namespace {

using test::Sinamalar;

constexpr std::uint8_t IkiVergi = bayrak::Gv | bayrak::Dv;

// The law of the second half of 2009.
YasalParametreler Yasal() {
  YasalParametreler y;
  y.oranlar.KidemTavan = Tutar(2365.16);
  y.oranlar.AsgariUcret = Tutar(693);
  y.oranlar.SskTavan = Tutar(4504.5);
  y.oranlar.DamgaOran = Tek(6);
  y.oranlar.IsciOran[0] = {Tek(0), Tek(5), Tek(9), Tek(0), Tek(1)};
  y.gv.GvLimit = {Tutar(8700), Tutar(22000), Tutar(50000), Tutar(1e9)};
  y.gv.GvOran = {Tek(15), Tek(20), Tek(27), Tek(35)};
  return y;
}

struct Hesap1 {
  YasalParametreler yasal = Yasal();
  KidemKurallari kurallar{.yasal = &yasal, .kidem = {}};
  KidemGirdisi girdi{.girtar = Tarih(2008, 8, 2),
                     .ciktar = Tarih(2009, 8, 1),
                     .AylikUcret = Tutar(1800),
                     .IhbarGun = {},
                     .matrah = {},
                     .KidemTavan = Tutar(2365.16),
                     .bayraklar = IkiVergi};

  KidemSonucu Yap(Iz* iz = nullptr) const { return KidemHesapla(kurallar, girdi, iz); }
};

TEST(KidemHesapla, DaysOfService) {
  const Sinamalar<int, Tarih, Tarih, int> durumlar{
      {360, Tarih(2008, 8, 2), Tarih(2009, 8, 1), 360},  // 365 days are a whole year
      {365, Tarih(2008, 8, 2), Tarih(2009, 8, 1), 365},
      {364, Tarih(2008, 8, 2), Tarih(2009, 8, 1), 360},  // whatever is not 365 is 360
      {0, Tarih(2008, 8, 2), Tarih(2009, 8, 1), 360},
      {360, Tarih(2009, 1, 1), Tarih(2009, 1, 1), 0},  // 0.986…
      {365, Tarih(2009, 1, 1), Tarih(2009, 1, 1), 1},
      {360, Tarih(2008, 8, 3), Tarih(2009, 8, 1), 359},  // 364 days: 359.01…
      {360, Tarih(2009, 1, 2), Tarih(2009, 1, 1), 0},    // the day after
      {360, Tarih(2009, 1, 10), Tarih(2009, 1, 1), -7},  // −8 days: −7.89 towards zero
      {365, Tarih(2009, 1, 10), Tarih(2009, 1, 1), -8},
  };
  for (const auto& [yilGunu, girtar, ciktar, gun] : durumlar)
    EXPECT_EQ(KidemGunu({std::int16_t(yilGunu), 9, 10}, girtar, ciktar), gun) << yilGunu << " " << girtar.Metin();
}

TEST(KidemHesapla, NoticeTableCountsAMonthAhead) {
  const IhbarSureleri bosluklu{{{0, 99}, {6, 15}, {0, 98}, {18, 30}, {-3, 97}, {0, 0}, {36, 45}, {32767, 60}}};
  const IhbarSureleri bos{};
  const Sinamalar<IhbarSureleri, int, int> durumlar{
      {VarsayilanIhbarSureleri, 0, 15},
      {VarsayilanIhbarSureleri, 179, 15},
      {VarsayilanIhbarSureleri, 180, 30},
      {VarsayilanIhbarSureleri, 539, 30},
      {VarsayilanIhbarSureleri, 540, 45},
      {VarsayilanIhbarSureleri, 1079, 45},
      {VarsayilanIhbarSureleri, 1080, 60},
      {VarsayilanIhbarSureleri, 20000, 60},
      {VarsayilanIhbarSureleri, -500, 15},
      {bosluklu, 179, 15},  // rows without months are passed over, and do not end the walk
      {bosluklu, 540, 45},
      {bosluklu, 2000, 60},
      {bosluklu, -100, 99},
      {bos, 500, 0},
  };
  for (const auto& [sureler, gun, ihbar] : durumlar) EXPECT_EQ(IhbarGunu(sureler, gun), ihbar) << gun;
}

TEST(KidemHesapla, AYearAtAnOrdinaryWage) {
  Hesap1 h;
  h.girdi.matrah = {Tutar(12600), Tutar(2085)};
  const KidemSonucu s = h.Yap();
  EXPECT_EQ(s.CalismaGunu, 360);
  EXPECT_EQ(s.KidemYil, 1);
  EXPECT_EQ(s.IhbarGun, 30);
  ASSERT_TRUE(s.tutarlar);
  const KidemTutarlari& t = *s.tutarlar;
  EXPECT_EQ(t.gunlukUcret, 60);
  EXPECT_EQ(t.gunlukEsas, 60);
  EXPECT_EQ(t.gunlukKidem, 5);
  EXPECT_EQ(t.brutKidem, 1800);
  EXPECT_EQ(t.kidemDamga, Tutar(10.8));
  EXPECT_DOUBLE_EQ(t.netKidem, 1789.2);
  EXPECT_EQ(t.brutIhbar, 1800);
  EXPECT_EQ(t.ihbarGelirVergisi, Tutar(360));  // all of it at 20 %
  EXPECT_EQ(t.ihbarDamga, Tutar(10.8));
  EXPECT_DOUBLE_EQ(t.netIhbar, 1429.2);
  EXPECT_DOUBLE_EQ(t.netToplam, 3218.4);
}

TEST(KidemHesapla, CeilingCutsSeveranceAndNotNotice) {
  const Sinamalar<double, double, double> durumlar{
      {2365.15, 2365.15, 2365.15}, {2365.16, 2365.16, 2365.16}, {2365.17, 2365.16, 2365.17}, {9000, 2365.16, 9000}};
  for (const auto& [ucret, kidem, ihbar] : durumlar) {
    Hesap1 h;
    h.girdi.AylikUcret = Tutar(ucret);
    EXPECT_EQ(Gosterilen(h.Yap().tutarlar->brutKidem, 2), Tutar(kidem)) << ucret;
    EXPECT_EQ(Gosterilen(h.Yap().tutarlar->brutIhbar, 2), Tutar(ihbar)) << ucret;
  }
}

TEST(KidemHesapla, FlagsDecideTaxOfNoticeAndDutyOfBoth) {
  const Sinamalar<int, double, double, double> durumlar{
      {0, 0, 0, 0}, {bayrak::Gv, 0, 270, 0}, {bayrak::Dv, 10.8, 0, 10.8}, {255, 10.8, 270, 10.8}};
  for (const auto& [bayraklar, kidemDamga, vergi, ihbarDamga] : durumlar) {
    Hesap1 h;
    h.girdi.bayraklar = std::uint8_t(bayraklar);
    const KidemTutarlari t = *h.Yap().tutarlar;
    EXPECT_EQ(t.kidemDamga, Tutar(kidemDamga)) << bayraklar;
    EXPECT_EQ(t.ihbarGelirVergisi, Tutar(vergi)) << bayraklar;
    EXPECT_EQ(t.ihbarDamga, Tutar(ihbarDamga)) << bayraklar;
  }
}

TEST(KidemHesapla, ExcludedSidesZeroWageAndTypedNotice) {
  Hesap1 h;
  const double kidem = h.Yap().tutarlar->netKidem, ihbar = h.Yap().tutarlar->netIhbar;
  h.girdi.kidemHaric = true;
  EXPECT_EQ(h.Yap().tutarlar->netToplam, ihbar);
  h.girdi.ihbarHaric = true;
  EXPECT_EQ(h.Yap().tutarlar->netToplam, 0);
  h.girdi.kidemHaric = false;
  EXPECT_EQ(h.Yap().tutarlar->netToplam, kidem);
  h.girdi.IhbarGun = 7;
  EXPECT_EQ(h.Yap().tutarlar->brutIhbar, 420);
  h.girdi.AylikUcret = Tutar();
  EXPECT_FALSE(h.Yap().tutarlar);
  EXPECT_EQ(h.Yap().CalismaGunu, 360);
  EXPECT_EQ(h.Yap().IhbarGun, 7);
}

// Before he has come: the arithmetic goes on, with signs.
TEST(KidemHesapla, LeavingBeforeEntry) {
  Hesap1 h;
  h.girdi.girtar = Tarih(2009, 8, 10);
  const KidemSonucu s = h.Yap();
  EXPECT_EQ(s.CalismaGunu, -7);
  EXPECT_EQ(s.tutarlar->brutKidem, -35);
  EXPECT_EQ(s.tutarlar->kidemDamga, Tutar(-0.21));
  EXPECT_EQ(s.IhbarGun, 15);
}

TEST(UcretYukle, EveryKindOfWage) {
  const YasalParametreler yasal = Yasal();
  const KidemKurallari kurallar{.yasal = &yasal, .kidem = {}, .IsSaati = Tek(7.5)};
  enum { Aylik, Gunluk, Saatlik };
  const Sinamalar<int, int, double, double> durumlar{
      {0, Aylik, 1000, 1000},  // a thirtieth and back
      {0, Gunluk, 40, 1200},      {0, Saatlik, 4, 900},
      {0, 9, 1234.56, 1234.56},   {2, Saatlik, 4, 693},  // the minimum wage, whatever stands on the card
      {1, Aylik, 477, 665.73},    {1, Gunluk, 15.9, 665.73},
      {1, Saatlik, 2.12, 665.73}, {3, Aylik, 50, 50},
  };
  for (const auto& [tip, esas, ucret, aylik] : durumlar) {
    Sicil s;
    s.ucrettipi = std::uint8_t(tip);
    s.ucretags = std::uint8_t(esas);
    s.ucret = Tutar(ucret);
    EXPECT_EQ(UcretYukle(s, kurallar, {}), Tutar(aylik)) << tip << " " << esas;
  }
}

// A net wage that has been taxed at the second bracket takes more gross, and a branch without rates less.
TEST(UcretYukle, NetStandsOnTheYearsBaseAndTheBranch) {
  YasalParametreler yasal = Yasal();
  yasal.oranlar.IsverenOran[0] = {Tek(1.5), Tek(7.5), Tek(11), Tek(0), Tek(2)};  // nothing of the employee's
  const KidemKurallari kurallar{.yasal = &yasal, .kidem = {}};
  Sicil s;
  s.ucrettipi = 1;
  s.ucret = Tutar(1000);
  const auto netBrut = [&](double prim, double devreden) {
    return test::KahinNettenBrut(yasal.gv, 1000, {prim, 6, Tutar(devreden), Tutar(4504.5), 2});
  };
  EXPECT_EQ(UcretYukle(s, kurallar, {}), Tutar(netBrut(15, 0)));
  EXPECT_EQ(UcretYukle(s, kurallar, {Tutar(9000), Tutar(1365)}), Tutar(netBrut(15, 9000)));
  for (const int dal : {1, 31, 32, 255}) {
    s.sskdurum = std::uint8_t(dal);
    EXPECT_EQ(UcretYukle(s, kurallar, {}), Tutar(netBrut(0, 0))) << dal;
  }
}

// ---- the second telling

struct Kisi {
  Sicil sicil;
  YasalParametreler yasal = Yasal();
  KidemKurallari kurallar;
  KidemGirdisi girdi;
};

class Zar {
 public:
  explicit Zar(unsigned tohum) : rastgele_(tohum) {}
  int operator()(int enAz, int enCok) { return std::uniform_int_distribution(enAz, enCok)(rastgele_); }
  Tutar Para(int enCokLira) { return Tutar::Hamdan(std::int64_t((*this)(0, enCokLira * 100)) * 100); }

 private:
  std::mt19937 rastgele_;
};

void KisiYap(Zar& zar, Kisi& k) {
  k.kurallar = {
      .yasal = &k.yasal, .kidem = {}, .IsSaati = Tek(zar(2, 24) / 2.0), .paraonda = zar(0, 3) ? 2 : zar(0, 4)};
  k.kurallar.kidem.KidemYilGun = std::int16_t(zar(0, 1) ? 365 : zar(0, 3) ? 360 : zar(-5, 400));
  for (IhbarSuresi& satir : k.kurallar.ihbar)
    if (zar(0, 3) == 0) satir = {std::int16_t(zar(-2, 60)), std::int16_t(zar(0, 120))};
  k.sicil.ucret = zar(0, 9) ? k.kurallar.paraonda == 0 ? Tutar(double(zar(1, 9000))) : zar.Para(9000) : Tutar();
  k.sicil.ucrettipi = std::uint8_t(zar(0, 3));
  k.sicil.ucretags = std::uint8_t(zar(0, 3));
  k.sicil.sskdurum = std::uint8_t(zar(0, 40));
  if (k.sicil.ucretags == 1) k.sicil.ucret = Tutar(k.sicil.ucret.Sayi() / 30);
  if (k.sicil.ucretags == 2) k.sicil.ucret = Tutar(k.sicil.ucret.Sayi() / 240);
  k.girdi.girtar = Tarih(2009, 12, 31).Ekle(-zar(0, 3) * zar(0, 4000));
  k.girdi.ciktar = zar(0, 9) ? Tarih(2009, 12, 31).Ekle(-zar(0, 400)) : k.girdi.girtar.Ekle(zar(-20, 370));
  k.girdi.matrah.dvgvmatrah = zar.Para(60000);
  k.girdi.KidemTavan = zar(0, 5) ? Tutar(2365.16) : zar.Para(3000);
  k.girdi.bayraklar = std::uint8_t(zar(0, 2) ? 255 : zar(0, 31));
  k.girdi.kidemHaric = zar(0, 4) == 0;
  k.girdi.ihbarHaric = zar(0, 4) == 0;
  if (zar(0, 5) == 0) k.girdi.IhbarGun = zar(0, 90);
}

// What the sheet of the rules says, step after step, in plain arithmetic.
struct Anlatilan {
  double ucret = 0, S = 0, T = 0, N = 0, V = 0, U = 0, toplam = 0;
  int gun = 0, ihbar = 0;
};

double AnlatilanUcret(const Kisi& k) {
  const double H = k.kurallar.IsSaati.Sayi();
  double gunluk = k.sicil.ucret.Sayi();
  if (k.sicil.ucretags == 2) gunluk = gunluk * H;
  if (k.sicil.ucretags != 1 && k.sicil.ucretags != 2) gunluk = gunluk / 30;
  if (k.sicil.ucrettipi == 2) gunluk = 693.0 / 30;
  if (k.sicil.ucrettipi == 1) {
    const double prim = k.sicil.sskdurum == 0 ? 15 : 0;
    const test::Para net = test::ParaYuvarla(30 * gunluk, k.kurallar.paraonda);
    gunluk = test::KahinNettenBrut(k.yasal.gv, net,
                                   {prim, 6, k.girdi.matrah.dvgvmatrah, Tutar(4504.5), k.kurallar.paraonda}) /
             30;
  }
  return test::Para(30 * gunluk);
}

Anlatilan Anlat(const Kisi& k) {
  Anlatilan a;
  const bool yil365 = k.kurallar.kidem.KidemYilGun == 365;
  const auto paraya = [&](double d) { return double(test::Para(test::ParaYuvarla(d, k.kurallar.paraonda))); };
  a.ucret = AnlatilanUcret(k);
  const int D = k.girdi.ciktar.SeriNo() - k.girdi.girtar.SeriNo() + 1;
  a.gun = yil365 ? D : int(std::trunc(D / 365.0 * 360.0));
  const int M = int(std::trunc((30 + a.gun) / 30.0));
  a.ihbar = k.kurallar.ihbar[0].gun;
  for (int L = 0, i = 0; i < 8; ++i) {
    const IhbarSuresi& satir = k.kurallar.ihbar[std::size_t(i)];
    if (!(satir.ay > 0)) continue;
    if (M < L) break;
    a.ihbar = satir.gun;
    L = satir.ay + 1;
  }
  if (k.girdi.IhbarGun) a.ihbar = *k.girdi.IhbarGun;
  if (!(a.ucret > 0)) return a;
  const double B = a.ucret > k.girdi.KidemTavan.Sayi() ? k.girdi.KidemTavan.Sayi() / 30 : a.ucret / 30;
  a.S = a.gun * (yil365 ? B * 30 / 365 : B * 30 / 360);
  a.N = a.ihbar * (a.ucret / 30);
  if (k.girdi.bayraklar & 8) a.T = paraya(6.0 * a.S / 1000);
  if (k.girdi.bayraklar & 8) a.U = paraya(6.0 * a.N / 1000);
  if (k.girdi.bayraklar & 4) a.V = test::KahinAylikVergi(k.yasal.gv, k.girdi.matrah.dvgvmatrah, test::Para(a.N));
  if (!k.girdi.ihbarHaric) a.toplam += a.N - (a.V + a.U);
  if (!k.girdi.kidemHaric) a.toplam += a.S - a.T;
  return a;
}

TEST(KidemHesapla, AgreesWithTheSecondTellingOver5000People) {
  Zar zar(20091231);
  int ucretli = 0, tavanda = 0;
  for (int i = 0; i < 5000; ++i) {
    SCOPED_TRACE(i);
    Kisi k;
    KisiYap(zar, k);
    k.girdi.AylikUcret = UcretYukle(k.sicil, k.kurallar, k.girdi.matrah);
    const KidemSonucu s = KidemHesapla(k.kurallar, k.girdi);
    const Anlatilan a = Anlat(k);
    ASSERT_EQ(k.girdi.AylikUcret.Sayi(), a.ucret);
    ASSERT_EQ(s.CalismaGunu, a.gun);
    ASSERT_EQ(s.IhbarGun, a.ihbar);
    ASSERT_EQ(s.tutarlar.has_value(), a.ucret > 0);
    if (!s.tutarlar) continue;
    ++ucretli;
    tavanda += k.girdi.AylikUcret > k.girdi.KidemTavan;
    ASSERT_EQ(s.tutarlar->brutKidem, a.S);
    ASSERT_EQ(s.tutarlar->kidemDamga.Sayi(), a.T);
    ASSERT_EQ(s.tutarlar->brutIhbar, a.N);
    ASSERT_EQ(s.tutarlar->ihbarGelirVergisi.Sayi(), a.V);
    ASSERT_EQ(s.tutarlar->ihbarDamga.Sayi(), a.U);
    ASSERT_NEAR(s.tutarlar->netToplam, a.toplam, 1e-6);
  }
  EXPECT_GT(ucretli, 4000);
  EXPECT_GT(tavanda, 500) << "the ceiling must be met";
}

// Every amount is explained, the tax by brackets, and the trace changes nothing.
TEST(KidemHesapla, TraceExplainsEveryAmount) {
  Hesap1 h;
  h.girdi.matrah = {Tutar(8000), Tutar(1200)};
  Iz iz;
  const KidemSonucu s = h.Yap(&iz);
  EXPECT_EQ(s.tutarlar->netToplam, h.Yap().tutarlar->netToplam);
  const auto sonuc = [&](std::string_view alan) {
    std::string son = "<none>";
    for (const IzAdimi& adim : iz)
      if (adim.alan == alan) son = adim.sonuc;
    return son;
  };
  const Sinamalar<std::string_view, std::string> durumlar{{"CalismaGunu", "360"},
                                                          {"KidemYil", "1.00"},
                                                          {"IhbarGun", "30"},
                                                          {"gunlukEsas", "60.00"},
                                                          {"gunlukKidem", "5.00"},
                                                          {"brutKidem", "1800.00"},
                                                          {"kidemDamga", "10.80"},
                                                          {"netKidem", "1789.20"},
                                                          {"brutIhbar", "1800.00"},
                                                          {"ihbarDamga", "10.80"},
                                                          {"ihbarGelirVergisi", "325.00"},
                                                          {"netIhbar", "1464.20"},
                                                          {"netToplam", "3253.40"}};
  for (const auto& [alan, beklenen] : durumlar) EXPECT_EQ(sonuc(alan), beklenen) << alan;
  std::vector<std::string> dilimler;
  for (const IzAdimi& adim : iz)
    if (adim.kural.starts_with("Vergi dilimi")) dilimler.push_back(adim.sonuc);
  EXPECT_THAT(dilimler, testing::ElementsAre("105.00", "220.00"));  // 700 at 15 %, 1,100 at 20 %
}

TEST(Gosterilen, RoundsHalfAwayFromZero) {
  const Sinamalar<double, int, double> durumlar{{59.178082, 2, 59.18}, {1.005, 2, 1.01},  {-1.005, 2, -1.01},
                                                {0.004, 2, 0},         {2.5, 0, 3},       {1.23456, 9, 1.2346},
                                                {0.5, 2, 0.5},         {1000000, 2, 1e6}, {-0.001, 2, 0}};
  for (const auto& [tutar, ondalik, gorunen] : durumlar) EXPECT_EQ(Gosterilen(tutar, ondalik), Tutar(gorunen)) << tutar;
  EXPECT_THROW(Gosterilen(1e16, 2), TutarTasmasi);
}

}  // namespace
}  // namespace belvani
