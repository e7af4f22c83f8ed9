// Every column of every table, through the cursor and through the typed rows.
#include <gtest/gtest.h>
#include <limits>

#include "core/sinamalar.h"
#include "core/store/ornekdepo.h"
#include "core/tables/uye.h"

namespace belvani {
namespace {

using test::OrnekDepo;
using test::Sinamalar;
using test::TabloImleci;
using A = AlanTipi;
using I = std::int64_t;

enum class Ornek { EnCok, Olagan, EnAz };
constexpr Ornek Ornekler[] = {Ornek::EnCok, Ornek::Olagan, Ornek::EnAz};

std::string Harfler(int harf) {
  static constexpr const char* dizi[] = {"Ş", "ı", "'", "İ", "ğ", "\"", "Ü", "ö", ";", "ç", "%", "â", "\\", "😀"};
  std::string s;
  for (int i = 0; i < harf; ++i) s += dizi[std::size_t(i) % std::size(dizi)];
  return s;
}

template <class T>
Deger Tam(Ornek o, T olagan) {
  using L = std::numeric_limits<T>;
  return I(o == Ornek::EnAz ? L::min() : o == Ornek::EnCok ? L::max() : olagan);
}

// `sira`: the column's place in its table, so that a mix-up of two columns shows.
Deger OrnekDeger(const AlanTanimi& alan, Ornek o, int sira) {
  const auto sec = [&]<class T>(T enAz, T olagan, T enCok) -> Deger {
    return o == Ornek::EnAz ? enAz : o == Ornek::EnCok ? enCok : olagan;
  };
  switch (alan.tip) {
    case A::Metin:
      return sec(std::string(), Harfler(1 + sira % alan.boyut), Harfler(alan.boyut));
    case A::Byte:
      return Tam(o, std::uint8_t(sira + 1));
    case A::Kisa:
      return Tam(o, std::int16_t(2000 + sira));
    case A::Uzun:
      return Tam(o, 70'000 + sira);
    case A::Tutar:
      return Tutar::Hamdan(TamDegeri(Tam(o, -12'345'678 - I(sira))));
    case A::Tek:
      return sec(Tek(-3.4e38).Sayi(), Tek(0.1 + sira).Sayi(), Tek(1e-30).Sayi());
    case A::Tarih:
      return sec(Tarih(100, 1, 1), Tarih(2008, 2, 1 + sira % 29), Tarih(9999, 12, 31));
    case A::Mantik:
      return o != Ornek::EnAz;
    case A::Ikili:
      return sec(Baytlar{}, Baytlar(7, std::uint8_t(sira)), Baytlar(1 << 20, 0xFF));
  }
  return Null{};
}

// In the order of the columns.
template <class Kayit>
std::vector<Deger> Degerler(Ornek o) {
  std::vector<Deger> degerler;
  Kayit::HerKolon([&](const AlanTanimi& alan) {
    const bool oto = alan.nitelik == AlanNiteligi::Otomatik;
    degerler.push_back(oto ? Deger(I(o) + 1) : OrnekDeger(alan, o, int(degerler.size())));
  });
  return degerler;
}

template <class Kayit>
Kayit KayitYap(Ornek o) {
  Kayit kayit;
  auto deger = [d = Degerler<Kayit>(o), i = std::size_t(0)]() mutable { return d[i++]; };
  Kayit::HerKolon([&](const auto& kolon) { UyeyeYaz(kayit.*kolon.uye, deger()); });
  return kayit;
}

template <class Kayit>
void ImlecleYaz(Veritabani& db, Ornek o) {
  TabloImleci rs(db, Kayit::TabloAdi);
  rs.KayitEkle();
  auto deger = [d = Degerler<Kayit>(o), i = std::size_t(0)]() mutable { return d[i++]; };
  Kayit::HerKolon([&](const AlanTanimi& alan) {
    if (const Deger d = deger(); alan.nitelik != AlanNiteligi::Otomatik) rs.AlanYaz(alan.ad, d);
  });
  ASSERT_TRUE(rs.KayitYaz()) << db.SonHata();
}

template <class Kayit>
void KayitlaYaz(Veritabani& db, Ornek o) {
  KayitYazici<Kayit> yazici(db.IcMotor());
  const std::int64_t no = yazici.Ekle(Kayit{});
  yazici.Degistir(KayitYap<Kayit>(o), no);
}

template <class Kayit>
class Kolonlar : public testing::Test {};
using Kayitlar = testing::Types<Peruser, Firma, Sicil, Foto, Kimlik, Brd, Dvr, Esco, Muaf, Arac, Indir, Kaztan, Entpar,
                                Sendika, Cari>;
TYPED_TEST_SUITE(Kolonlar, Kayitlar);

TYPED_TEST(Kolonlar, WrittenAndReadBothWays) {
  for (const auto yaz : {&ImlecleYaz<TypeParam>, &KayitlaYaz<TypeParam>}) {
    OrnekDepo d;
    for (const Ornek o : Ornekler) yaz(d.db, o);
    d.db.DbKapat();
    ASSERT_TRUE(d.db.DbAc(d.yol));
    TabloImleci rs(d.db, TypeParam::TabloAdi);
    ASSERT_EQ(rs.KayitSayisi(), int(std::size(Ornekler)));
    const auto kayitlar =
        KayitlariOku<TypeParam>(d.db.IcMotor(), "order by " + d.db.IcMotor().KimlikKolonu(TypeParam::TabloAdi));
    for (const Ornek o : Ornekler) {
      const TypeParam& okunan = kayitlar.at(std::size_t(o));
      TypeParam beklenen = KayitYap<TypeParam>(o);
      auto deger = [d2 = Degerler<TypeParam>(o), i = std::size_t(0)]() mutable { return d2[i++]; };
      TypeParam::HerKolon([&](const auto& kolon) {
        const Deger beklenenDeger = deger();
        // A number is the engine's to give, as long as they grow.
        if (kolon.nitelik == AlanNiteligi::Otomatik)
          beklenen.*kolon.uye = okunan.*kolon.uye;
        else
          EXPECT_EQ(rs.AlanOku(kolon.ad), beklenenDeger) << kolon.ad << int(o);
      });
      EXPECT_EQ(okunan, beklenen) << int(o);
      rs.SonrakiKayit();
    }
  }
}

// Keys aside, a new row is Null throughout.
TYPED_TEST(Kolonlar, NullReadsByType) {
  OrnekDepo d;
  const TabloTanimi& tablo = *TabloBul(TypeParam::TabloAdi);
  const auto dolu = [&](const AlanTanimi& alan) {
    const bool anahtar = !tablo.indeksler.empty() && tablo.indeksler.front().alanlar.front() == alan.ad;
    return anahtar || alan.nitelik == AlanNiteligi::Zorunlu;
  };
  TabloImleci rs(d.db, tablo.ad);
  rs.KayitEkle();
  for (const auto& alan : tablo.alanlar)
    if (dolu(alan)) rs.AlanYaz(alan.ad, OrnekDeger(alan, Ornek::Olagan, 0));
  ASSERT_TRUE(rs.KayitYaz() && rs.IlkKayit()) << d.db.SonHata();
  TypeParam kayit = KayitlariOku<TypeParam>(d.db.IcMotor()).at(0), bos;
  TypeParam::HerKolon([&](const auto& kolon) {
    if (dolu(kolon)) {
      kayit.*kolon.uye = bos.*kolon.uye;
      return;
    }
    const bool metinGibi = kolon.tip == A::Metin || kolon.tip == A::Tarih;
    EXPECT_EQ(rs.AlanOku(kolon.ad), metinGibi ? Deger(std::string()) : Deger(I(0))) << kolon.ad;
  });
  EXPECT_EQ(kayit, bos);
}

std::vector<Deger> SigmayanDegerler(const AlanTanimi& alan) {
  switch (alan.tip) {
    case A::Metin:
      return {Harfler(alan.boyut + 1), std::string("\xFE"), Baytlar{65}};
    case A::Byte:
      return {I(256), I(-1), 1e300, std::string("iki")};
    case A::Kisa:
      return {I(32768), I(-32769), std::string("1.5")};
    case A::Uzun:
      return {I(1) << 31, -(I(1) << 31) - 1, Tarih(2008, 1, 1)};
    case A::Tutar:
      return {9.3e14, -9.3e14, I(1) << 62, std::string("1.234,5"), Baytlar{1}, Tarih(2008, 1, 1)};
    case A::Tek:
      return {1e39, HUGE_VAL, std::string("on"), Baytlar{1}};
    case A::Tarih:
      return {I(39000), std::string("31.02.2008"), true};
    case A::Mantik:
      return {std::string("evet"), Tarih(2008, 1, 1), Baytlar{1}};
    case A::Ikili:
      return {std::string("resim"), I(1)};
  }
  return {};
}

// A value that does not fit is kept and blocks the save, until one that fits takes its place.
TYPED_TEST(Kolonlar, WhatDoesNotFitIsNotSaved) {
  OrnekDepo d;
  TabloImleci rs(d.db, TypeParam::TabloAdi);
  const auto& alanlar = TabloBul(TypeParam::TabloAdi)->alanlar;
  const auto olagan = Degerler<TypeParam>(Ornek::Olagan);
  for (std::size_t i = 0; i < alanlar.size(); ++i)
    for (const Deger& deger : SigmayanDegerler(alanlar[i])) {
      rs.KayitEkle();
      for (std::size_t j = 0; j < alanlar.size(); ++j) rs.AlanYaz(alanlar[j].ad, i == j ? deger : olagan[j]);
      EXPECT_FALSE(rs.KayitYaz()) << alanlar[i].ad << MetinDegeri(deger);
      EXPECT_TRUE(d.db.SonHata().starts_with(std::string(alanlar[i].ad) + ": ")) << d.db.SonHata();
      EXPECT_EQ(rs.KayitSayisi(), 0);
      EXPECT_EQ(rs.AlanOku(alanlar[i].ad), deger) << alanlar[i].ad;
    }
  for (std::size_t j = 0; j < alanlar.size(); ++j) rs.AlanYaz(alanlar[j].ad, olagan[j]);
  EXPECT_TRUE(rs.KayitYaz()) << d.db.SonHata();
}

TEST(AlanYaz, FitsTheValueToTheField) {
  // clang-format off
  const Sinamalar<std::string_view, Deger, Deger> durumlar{
      {"adi", std::string("A\x01\x7F\r\nli") + '\0', std::string("Ali")}, {"adi", std::string(" İ "), std::string(" İ ")},
      {"adi", I(-7), std::string("-7")}, {"adi", Tarih(2008, 2, 1), std::string("01.02.2008")}, {"adi", Null{}, std::string()},
      {"SSKDURUM", std::string(" 12\n"), I(12)}, {"sskdurum", 2.5, I(2)}, {"sskdurum", true, I(1)}, {"sskdurum", std::string(), I(0)},
      {"ucret", 693.33335, Tutar::Hamdan(6'933'334)}, {"ucret", std::string("1,234.5"), Tutar(1234.5)},
      {"ucret", I(-5), Tutar(-5.0)}, {"ucret", true, Tutar(1.0)},
      {"girtar", std::string("29.02.2008"), Tarih(2008, 2, 29)}, {"girtar", std::string(" "), std::string()}, {"girtar", Tarih(), std::string()},
      {"agi", I(-1), true}, {"agi", Tutar(0.0001), true}, {"agi", std::string("0"), false}};
  // clang-format on
  OrnekDepo d;
  TabloImleci rs(d.db, "sicil");
  ASSERT_TRUE(test::Ekle(rs, {{"kod", std::string("1")}}) && rs.IlkKayit());
  for (const auto& [alan, deger, beklenen] : durumlar) {
    rs.KayitDuzelt();
    rs.AlanYaz(alan, deger);
    EXPECT_TRUE(rs.KayitYaz()) << alan << d.db.SonHata();
    EXPECT_EQ(rs.AlanOku(alan), beklenen) << alan << " " << MetinDegeri(deger);
  }
}

TEST(KayitYazici, LeavesTheAutomaticNumberToTheStore) {
  OrnekDepo d;
  KayitYazici<Cari> yazici(d.db.IcMotor());
  Cari kayit{"1", {}, "ilk", 1, Tutar(5.0), 77};
  for (int i = 0; i < 2; ++i) yazici.Ekle(kayit);
  kayit.islem = 9;
  yazici.Degistir(kayit, 2);
  const std::vector<Cari> beklenen{{"1", {}, "ilk", 1, Tutar(5.0), 1}, {"1", {}, "ilk", 9, Tutar(5.0), 2}};
  EXPECT_EQ(KayitlariOku<Cari>(d.db.IcMotor(), "order by oto"), beklenen);
}

// A hand has been in the file: what is no value of its field's type reads as nothing, both ways alike.
TEST(AlanOku, StrayValuesOfABrokenStore) {
  YALNIZ_DIZINDE("a server's columns take values of their type alone");
  OrnekDepo d;
  d.db.IcMotor().Calistir(
      "insert into brd (ay, yil, brdkanun, kod, fm1) values (300, -99999, 1 << 40, x'4142', 'on');"
      "insert into sicil (kod, girtar, agi) values ('1', '2008-02-31', 'x')");
  TabloImleci brd(d.db, "brd"), sicil(d.db, "sicil");
  Brd beklenen;
  beklenen.oto = 1;
  beklenen.kod = "AB";
  EXPECT_EQ(KayitlariOku<Brd>(d.db.IcMotor()).at(0), beklenen);
  for (const char* alan : {"ay", "yil", "brdkanun", "fm1"}) EXPECT_EQ(SayiDegeri(brd.AlanOku(alan)), 0) << alan;
  EXPECT_EQ(brd.MetinOku("kod"), "AB");
  EXPECT_EQ(sicil.AlanOku("girtar"), Deger(std::string()));
  EXPECT_EQ(sicil.AlanOku("agi"), Deger(false));
}

}  // namespace
}  // namespace belvani
