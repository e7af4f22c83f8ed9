// The bytes of every parameter record, checked against bytes that are laid down here by hand.
#include "payroll/parametre/kayitlar.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "core/sinamalar.h"

namespace belvani {
namespace {

using namespace std::string_literals;

using I = std::int64_t;

std::string Bayt(const std::string& metin) {
  return metin;
}
template <class T>
std::string Bayt(T sayi) {
  static_assert(std::endian::native == std::endian::little);
  return std::string(reinterpret_cast<const char*>(&sayi), sizeof sayi);
}
// Singles, amounts and texts one behind the other.
template <class... T>
std::string El(const T&... parcalar) {
  return (Bayt(parcalar) + ...);
}

// Reads the bytes, hands the value out, and expects to write the same bytes again.
template <class Kayit>
typename Kayit::Deger GidisDonus(const std::string& el) {
  const auto cozum = KayitCoz<Kayit>(el);
  EXPECT_EQ(cozum.gecersiz, 0);
  EXPECT_EQ(el.size(), Kayit::Boy);
  EXPECT_EQ(KayitBaytlari<Kayit>(cozum.deger), el);
  return cozum.deger;
}

TEST(Kayitlar, SpecialExpenseParameters) {
  const auto p = GidisDonus<OzelGiderKaydi>(El(35.5f, std::int16_t(11), std::int16_t(2005), 6.6f));
  EXPECT_EQ(p, (OzelGiderParametreleri{Tek(35.5), 11, 2005, Tek(6.6)}));
}

TEST(Kayitlar, StatutoryRates) {
  std::string el;
  for (int i = 0; i < 320; ++i) el += El(float(i));  // both sides, column after column of 32 rows
  el += El(I(6'930'000), I(-1), I(45'045'000), I(23'651'600), 6.6f, I(81'540'000), "yalnız saklanan"s, I(6'700'000),
           I(3'300'000), I(1'600'000), 10.1f);
  const YasalOranlar o = GidisDonus<YasalKaydi>(el);
  EXPECT_EQ(o.IsciOran[12], (OranSatiri{Tek(12), Tek(44), Tek(76), Tek(108), Tek(140)}));
  EXPECT_EQ(o.IsverenOran[31], (OranSatiri{Tek(191), Tek(223), Tek(255), Tek(287), Tek(319)}));
  EXPECT_EQ(o.AsgariUcret, Tutar(693));
  EXPECT_EQ(o.SskTaban.Ham(), -1);
  EXPECT_EQ(o.SskTavan, Tutar(4504.5));
  EXPECT_EQ(o.KidemTavan, Tutar(2365.16));
  EXPECT_EQ(o.DamgaOran.Sayi(), 6.6);
  EXPECT_EQ(o.MuafTavan, Tutar(8154));
  EXPECT_EQ(o.SakatIndirim, (std::array{Tutar(670), Tutar(330), Tutar(160)}));
  EXPECT_EQ(o.MuafOran.Sayi(), 10.1);
}

TEST(Kayitlar, TaxTableKeepsLimitsBeforeRatesAndTheSpecialOneSideBySide) {
  std::string limitler, oranlar, yanYana;
  GvTablosu gv;
  for (int i = 0; i < 8; ++i) {
    gv.GvLimit[std::size_t(i)] = Tutar::Hamdan(i + 1);
    gv.GvOran[std::size_t(i)] = Tek(15 + i);
    limitler += El(I(i + 1));
    oranlar += El(15.0f + float(i));
    yanYana += El(I(i + 1), 15.0f + float(i));
  }
  EXPECT_EQ(GidisDonus<GvKaydi>(limitler + oranlar), gv);
  EXPECT_EQ(GidisDonus<OzelGvKaydi>(yanYana), gv);
}

TEST(Kayitlar, SmallRecords) {
  EXPECT_EQ(GidisDonus<AgiKaydi>(El(50.0f, 10.0f, 7.5f, 5.0f, 4.0f, I(6'660'000))),
            (AgiTablosu{Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(4), Tutar(666)}));
  EXPECT_EQ(GidisDonus<FazlaMesaiKaydi>(El(1.5f, 40.0f)), (FazlaMesai{Tek(1.5), Tek(40)}));
  EXPECT_EQ(GidisDonus<KazancKaydi>("\x0f" + std::string(7, '\1') + "\x0e")[8], 14);
  EXPECT_EQ(GidisDonus<YardimKaydi>(std::string(10, '\1') + "\x1f")[10], 31);
  // 01.10.2008 is day 39722.
  const std::string kanun = "\x00\x00\x00\x00\x40\x65\xe3\x40"s + "\x00\x00\x00\x00\x00\x00\xf0\x3f"s + "\xfe\xff"s;
  EXPECT_EQ(GidisDonus<KanunKaydi>(kanun), (KanunSatiri{Tarih(2008, 10, 1), Tarih(1899, 12, 31), -2}));
  EXPECT_EQ(GidisDonus<KidemParKaydi>("\x6d\x01\x05\xff"s), (KidemParametreleri{365, 5, 255}));
  EXPECT_EQ(GidisDonus<KidemParKaydi>("\xff\xff\x00\x00"s).KidemYilGun, -1);
  const IhbarSureleri sureler =
      GidisDonus<IhbarSureKaydi>("\x06\0\x0f\0"s + std::string(24, '\0') + "\x0f\x27\xff\xff"s);
  EXPECT_EQ(sureler[0], (IhbarSuresi{6, 15}));
  EXPECT_EQ(sureler[7], (IhbarSuresi{9999, -1}));
  const Sablon s = GidisDonus<SablonKaydi>(
      El(26.0f, std::string(28, '\0'), 2.5f, I(1'500'000), std::string(72, '\0'), I(99), "\2 23456789\xFF"s));
  EXPECT_EQ(s.SablonGun[0].Sayi() + s.SablonGun[8].Sayi(), 28.5);
  EXPECT_EQ(s.SablonYardim[0], Tutar(150));
  EXPECT_EQ(s.SablonYardim[10].Ham(), 99);
  EXPECT_EQ(s.SablonYardimTip[0] + s.SablonYardimTip[10], 2 + 255);
}

TEST(Kayitlar, BranchesAreTextOfTheTurkishCodePage) {
  const std::string bos = El("\0"s, std::string(79, ' '), "\0"s);
  std::string el = El("\1\xC7\xFDrak/\xDE\xF0"s, std::string(71, ' '), "\1"s);
  for (int i = 1; i < 49; ++i) el += bos;
  el += El("\xFF"s, std::string(79, 'x'), "\0"s);
  HesapTurleri turler = GidisDonus<HesapTurKaydi>(el);
  EXPECT_EQ(turler[0], (HesapTuru{1, "Çırak/Şğ", 1}));
  EXPECT_EQ(turler[1], HesapTuru());
  EXPECT_EQ(turler[49], (HesapTuru{255, std::string(79, 'x'), 0}));

  turler[0].ack = std::string(90, 'a') + "ş";
  turler[1].ack = "€ ve 漢";
  const std::string kesik = KayitBaytlari<HesapTurKaydi>(turler);
  EXPECT_EQ(kesik.substr(0, 81), "\1" + std::string(79, 'a') + "\1");
  EXPECT_EQ(KayitCoz<HesapTurKaydi>(kesik).deger[1].ack, "€ ve ?");
  EXPECT_EQ(KayitCoz<HesapTurKaydi>("\1Box  \0 \0"s).deger[0].ack, "Box") << "padding is no text";
}

TEST(Kayitlar, WhatIsNoNumberIsCountedAndReadsAsNothing) {
  constexpr float belirsiz = std::numeric_limits<float>::quiet_NaN();
  constexpr float sonsuz = std::numeric_limits<float>::infinity();
  const auto agi = KayitCoz<AgiKaydi>(El(belirsiz, -sonsuz, 7.5f, 0.0f, 0.0f, I(0)));
  EXPECT_EQ(agi.gecersiz, 2);
  EXPECT_EQ(agi.deger, (AgiTablosu{Tek(0), Tek(0), Tek(7.5), Tek(0), Tek(0), Tutar()}));
  for (const auto& [seri, gun] : test::Sinamalar<double, Tarih>{
           {double(belirsiz), {}}, {1e18, {}}, {0.0, Tarih(1899, 12, 30)}, {39722.75, Tarih(2008, 10, 1)}}) {
    const auto satir = KayitCoz<KanunKaydi>(El(seri, 1.0, "\1\0"s));
    EXPECT_EQ(satir.deger.bastar, gun) << seri;
    EXPECT_EQ(satir.gecersiz, gun.Bos() ? 1 : 0) << seri;
  }
}

// Any bytes at all settle after one write; those of numbers come back as they were unless one was none.
template <class Kayit>
void BaytlarGeriGelir() {
  const auto baytlar = *rc::gen::container<std::string>(Kayit::Boy, rc::gen::arbitrary<char>());
  const auto cozum = KayitCoz<Kayit>(baytlar);
  const std::string yazilan = KayitBaytlari<Kayit>(cozum.deger);
  const bool metinli = std::is_same_v<Kayit, HesapTurKaydi>;
  if (cozum.gecersiz == 0 && !metinli) RC_ASSERT(yazilan == baytlar);
  RC_ASSERT(yazilan.size() == Kayit::Boy);
  RC_ASSERT(KayitBaytlari<Kayit>(KayitCoz<Kayit>(yazilan).deger) == yazilan);
}

RC_GTEST_PROP(Kayitlar, AnyBytesComeBack, ()) {
  BaytlarGeriGelir<YasalKaydi>();
  BaytlarGeriGelir<OzelGvKaydi>();
  BaytlarGeriGelir<HesapTurKaydi>();
  BaytlarGeriGelir<SablonKaydi>();
}

}  // namespace
}  // namespace belvani
