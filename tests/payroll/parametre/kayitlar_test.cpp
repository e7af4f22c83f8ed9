// The bytes of every parameter record, checked against offsets that are written down here once more.
#include "payroll/parametre/kayitlar.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

namespace belvani {
namespace {

using namespace std::string_literals;

// Bytes laid down by hand at their offsets.
class ElYapimi {
 public:
  explicit ElYapimi(std::size_t boy, char dolgu = '\0') : baytlar_(boy, dolgu) {}

  template <class T>
  ElYapimi& Koy(std::size_t yer, T sayi) {
    static_assert(std::endian::native == std::endian::little);
    std::memcpy(baytlar_.data() + yer, &sayi, sizeof sayi);
    return *this;
  }
  ElYapimi& Koy(std::size_t yer, const std::string& metin) {
    baytlar_.replace(yer, metin.size(), metin);
    return *this;
  }
  const std::string& Baytlar() const { return baytlar_; }

 private:
  std::string baytlar_;
};

Tutar Lira(std::int64_t tam) {
  return Tutar::Hamdan(tam * 10'000);
}

// Reads the bytes, hands the value out, and expects to write the same bytes again.
template <class Kayit>
typename Kayit::Deger GidisDonus(const ElYapimi& el) {
  const auto cozum = KayitCoz<Kayit>(el.Baytlar());
  EXPECT_EQ(cozum.gecersiz, 0);
  EXPECT_EQ(el.Baytlar().size(), Kayit::Boy);
  EXPECT_EQ(KayitBaytlari<Kayit>(cozum.deger), el.Baytlar());
  return cozum.deger;
}

TEST(Kayitlar, StatutoryRates) {
  ElYapimi el(1368);
  el.Koy(0, 1.0f).Koy((12 + 32 * 0) * 4, 2.0f).Koy((12 + 32 * 1) * 4, 5.0f).Koy((12 + 32 * 2) * 4, 9.1f);
  el.Koy((12 + 32 * 3) * 4, 7.5f).Koy((12 + 32 * 4) * 4, 0.1f).Koy(636, 3.0f);
  el.Koy(640, 6.0f).Koy(640 + (1 + 32 * 3) * 4, 22.5f).Koy(1276, 2.0f);
  el.Koy(1280, std::int64_t(6'930'000)).Koy(1288, std::int64_t(-1)).Koy(1296, std::int64_t(45'045'000));
  el.Koy(1304, std::int64_t(23'651'600)).Koy(1312, 6.6f).Koy(1316, std::int64_t(81'540'000));
  el.Koy(1324, "yalnız saklanan "s.substr(0, 16));
  el.Koy(1340, std::int64_t(6'700'000)).Koy(1348, std::int64_t(3'300'000)).Koy(1356, std::int64_t(1'600'000));
  el.Koy(1364, 10.0f);
  const YasalOranlar o = GidisDonus<YasalKaydi>(el);
  EXPECT_EQ(o.IsciOran[0].ana.Sayi(), 1);
  EXPECT_EQ(o.IsciOran[12], (OranSatiri{Tek(2), Tek(5), Tek(9.1), Tek(7.5), Tek(0.1)}));
  EXPECT_EQ(o.IsciOran[12].mal.Sayi(), 9.1);
  EXPECT_EQ(o.IsciOran[31].isz.Sayi(), 3);
  EXPECT_EQ(o.IsverenOran[0].ana.Sayi(), 6);
  EXPECT_EQ(o.IsverenOran[1].sgdp.Sayi(), 22.5);
  EXPECT_EQ(o.IsverenOran[31].isz.Sayi(), 2);
  EXPECT_EQ(o.AsgariUcret, Lira(693));
  EXPECT_EQ(o.SskTaban.Ham(), -1);
  EXPECT_EQ(o.SskTavan, Tutar(4504.5));
  EXPECT_EQ(o.KidemTavan, Tutar(2365.16));
  EXPECT_EQ(o.DamgaOran.Sayi(), 6.6);
  EXPECT_EQ(o.MuafTavan, Lira(8154));
  EXPECT_EQ(o.SakatIndirim, (std::array{Lira(670), Lira(330), Lira(160)}));
  EXPECT_EQ(o.MuafOran.Sayi(), 10);
}

TEST(Kayitlar, TaxTableKeepsLimitsBeforeRatesAndTheSpecialOneSideBySide) {
  const GvTablosu gv = GidisDonus<GvKaydi>(
      ElYapimi(96).Koy(0, std::int64_t(87'000'000)).Koy(56, std::int64_t(500'000'000)).Koy(64, 15.0f).Koy(92, 35.0f));
  EXPECT_EQ(gv.GvLimit[0], Lira(8700));
  EXPECT_EQ(gv.GvLimit[7], Lira(50000));
  EXPECT_EQ(gv.GvOran[0].Sayi(), 15);
  EXPECT_EQ(gv.GvOran[7].Sayi(), 35);

  const GvTablosu ozel = GidisDonus<OzelGvKaydi>(ElYapimi(96)
                                                     .Koy(0, std::int64_t(30'000'000))
                                                     .Koy(8, 8.0f)
                                                     .Koy(12, std::int64_t(60'000'000))
                                                     .Koy(20, 6.0f)
                                                     .Koy(84, std::int64_t(90'000'000))
                                                     .Koy(92, 4.0f));
  EXPECT_EQ(ozel.GvLimit[0], Lira(3000));
  EXPECT_EQ(ozel.GvOran[0].Sayi(), 8);
  EXPECT_EQ(ozel.GvLimit[1], Lira(6000));
  EXPECT_EQ(ozel.GvOran[1].Sayi(), 6);
  EXPECT_EQ(ozel.GvLimit[7], Lira(9000));
  EXPECT_EQ(ozel.GvOran[7].Sayi(), 4);
}

TEST(Kayitlar, MinimumLivingAllowance) {
  const AgiTablosu agi =
      GidisDonus<AgiKaydi>(ElYapimi(28).Koy(0, 50.0f).Koy(4, 10.0f).Koy(8, 7.5f).Koy(12, 5.0f).Koy(16, 4.0f).Koy(
          20, std::int64_t(6'660'000)));
  EXPECT_EQ(agi, (AgiTablosu{Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(4), Lira(666)}));
}

TEST(Kayitlar, BranchesAreTextOfTheTurkishCodePage) {
  ElYapimi el(4050, ' ');
  for (std::size_t i = 0; i < 50; ++i) el.Koy(i * 81, '\0').Koy(i * 81 + 80, '\0');
  el.Koy(0, '\1').Koy(1, "\xC7\xFDrak/\xDE" + "\xF0"s).Koy(80, '\1');
  el.Koy(49 * 81, '\xFF').Koy(49 * 81 + 1, std::string(79, 'x'));
  const HesapTurleri turler = GidisDonus<HesapTurKaydi>(el);
  EXPECT_EQ(turler[0], (HesapTuru{1, "Çırak/Şğ", 1}));
  EXPECT_EQ(turler[1], HesapTuru());
  EXPECT_EQ(turler[49], (HesapTuru{255, std::string(79, 'x'), 0}));
}

TEST(Kayitlar, TextsAreCutAtTheFieldAndPaddingIsNoText) {
  HesapTurleri turler;
  turler[0] = {1, std::string(90, 'a') + "ş", 1};
  turler[1] = {2, "€ ve 漢", 0};
  const std::string baytlar = KayitBaytlari<HesapTurKaydi>(turler);
  ASSERT_EQ(baytlar.size(), 4050u);
  EXPECT_EQ(baytlar.substr(0, 82), "\1" + std::string(79, 'a') + "\1\2");
  EXPECT_EQ(KayitCoz<HesapTurKaydi>(baytlar).deger[1].ack, "€ ve ?");
  const std::string sifirDolgulu = ElYapimi(4050).Koy(1, "Boş  "s.substr(0, 2) + "x  ").Baytlar();
  EXPECT_EQ(KayitCoz<HesapTurKaydi>(sifirDolgulu).deger[0].ack, "Box");
}

TEST(Kayitlar, EraRow) {
  // 01.10.2008 is day 39722.
  const std::string elle = "\x00\x00\x00\x00\x40\x65\xe3\x40"s + "\x00\x00\x00\x00\x00\x00\xf0\x3f"s + "\xfe\xff"s;
  const KanunSatiri satir = GidisDonus<KanunKaydi>(ElYapimi(18).Koy(0, elle));
  EXPECT_EQ(satir, (KanunSatiri{Tarih(2008, 10, 1), Tarih(1899, 12, 31), -2}));
}

TEST(Kayitlar, OvertimeFlagsTemplate) {
  EXPECT_EQ(GidisDonus<FazlaMesaiKaydi>(ElYapimi(8).Koy(0, 1.5f).Koy(4, 40.0f)), (FazlaMesai{Tek(1.5), Tek(40)}));
  EXPECT_EQ(GidisDonus<KazancKaydi>(ElYapimi(9).Koy(0, '\x0f').Koy(8, '\x0e'))[8], 14);
  EXPECT_EQ(GidisDonus<YardimKaydi>(ElYapimi(11).Koy(10, '\x1f'))[10], 31);
  const Sablon s = GidisDonus<SablonKaydi>(ElYapimi(135)
                                               .Koy(0, 26.0f)
                                               .Koy(32, 2.5f)
                                               .Koy(36, std::int64_t(1'500'000))
                                               .Koy(116, std::int64_t(99))
                                               .Koy(124, '\2')
                                               .Koy(134, '\xFF'));
  EXPECT_EQ(s.SablonGun[0].Sayi(), 26);
  EXPECT_EQ(s.SablonGun[8].Sayi(), 2.5);
  EXPECT_EQ(s.SablonYardim[0], Lira(150));
  EXPECT_EQ(s.SablonYardim[10].Ham(), 99);
  EXPECT_EQ(s.SablonYardimTip[0], 2);
  EXPECT_EQ(s.SablonYardimTip[10], 255);
}

TEST(Kayitlar, WhatIsNoNumberIsCountedAndReadsAsNothing) {
  constexpr float belirsiz = std::numeric_limits<float>::quiet_NaN();
  constexpr float sonsuz = std::numeric_limits<float>::infinity();
  const auto agi = KayitCoz<AgiKaydi>(ElYapimi(28).Koy(0, belirsiz).Koy(4, -sonsuz).Koy(8, 7.5f).Baytlar());
  EXPECT_EQ(agi.gecersiz, 2);
  EXPECT_EQ(agi.deger, (AgiTablosu{Tek(0), Tek(0), Tek(7.5), Tek(0), Tek(0), Tutar()}));

  const struct {
    const char* ad;
    double seri;
    bool gun;
  } gunler[] = {{"NaN", std::numeric_limits<double>::quiet_NaN(), false},
                {"infinite", std::numeric_limits<double>::infinity(), false},
                {"beyond the calendar", 1e18, false},
                {"day 0", 0.0, true},
                {"with a clock time", 39722.75, true}};
  for (const auto& g : gunler) {
    const auto satir = KayitCoz<KanunKaydi>(ElYapimi(18).Koy(0, g.seri).Koy(8, 1.0).Baytlar());
    EXPECT_EQ(satir.deger.bastar.Bos(), !g.gun) << g.ad;
    EXPECT_EQ(satir.gecersiz, g.gun ? 0 : 1) << g.ad;
  }
}

// Any bytes at all; those of the records of numbers come back as they were unless one was none.
template <class Kayit>
void BaytlarGeriGelir() {
  const auto baytlar = *rc::gen::container<std::string>(Kayit::Boy, rc::gen::arbitrary<char>());
  const auto cozum = KayitCoz<Kayit>(baytlar);
  const std::string yazilan = KayitBaytlari<Kayit>(cozum.deger);
  if (cozum.gecersiz == 0) RC_ASSERT(yazilan == baytlar);
  RC_ASSERT(KayitBaytlari<Kayit>(KayitCoz<Kayit>(yazilan).deger) == yazilan);
}

RC_GTEST_PROP(Kayitlar, AnyBytesOfNumbersComeBack, ()) {
  BaytlarGeriGelir<YasalKaydi>();
  BaytlarGeriGelir<GvKaydi>();
  BaytlarGeriGelir<OzelGvKaydi>();
  BaytlarGeriGelir<AgiKaydi>();
  BaytlarGeriGelir<FazlaMesaiKaydi>();
  BaytlarGeriGelir<KazancKaydi>();
  BaytlarGeriGelir<YardimKaydi>();
  BaytlarGeriGelir<SablonKaydi>();
}

RC_GTEST_PROP(Kayitlar, AnyBytesOfTextSettleAfterOneWrite, ()) {
  const auto baytlar = *rc::gen::container<std::string>(HesapTurKaydi::Boy, rc::gen::arbitrary<char>());
  const std::string yazilan = KayitBaytlari<HesapTurKaydi>(KayitCoz<HesapTurKaydi>(baytlar).deger);
  RC_ASSERT(yazilan.size() == HesapTurKaydi::Boy);
  RC_ASSERT(KayitBaytlari<HesapTurKaydi>(KayitCoz<HesapTurKaydi>(yazilan).deger) == yazilan);
}

RC_GTEST_PROP(Kayitlar, ShortBytesReadAsZeros, (const std::string& baytlar)) {
  const std::string bas = baytlar.substr(0, AgiKaydi::Boy);
  const std::string dolu = bas + std::string(AgiKaydi::Boy - bas.size(), '\0');
  RC_ASSERT(KayitCoz<AgiKaydi>(bas).deger == KayitCoz<AgiKaydi>(dolu).deger);
}

}  // namespace
}  // namespace belvani
