// The schema: facts of the tables, limits of the columns, values from texts.
#include "core/tables/tablolar.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <new>
#include <set>

#include "core/tablo.h"

namespace belvani {
namespace {

using test::Tablo;

// Counts of the columns by type, in the order of AlanTipi, and the letters of all texts together.
TEST(Tablolar, ColumnsTypesSizesKeys) {
  const Tablo<std::string_view, std::vector<int>, int, std::string_view> durumlar{
      {"peruser", {2, 0, 0, 0, 0, 0, 0, 1, 0}, 16, "kod"},   {"firma", {29, 3, 2, 0, 0, 4, 1, 1, 0}, 520, ""},
      {"sicil", {17, 6, 0, 0, 4, 0, 2, 4, 0}, 235, "kod"},   {"foto", {1, 0, 0, 0, 0, 0, 0, 0, 1}, 8, "kod"},
      {"kimlik", {19, 5, 0, 0, 0, 0, 2, 0, 0}, 299, "kod"},  {"brd", {1, 11, 1, 2, 39, 12, 0, 0, 0}, 8, "oto"},
      {"dvr", {2, 0, 1, 0, 6, 0, 0, 0, 0}, 20, "yilkod"},    {"esco", {6, 3, 0, 1, 0, 0, 1, 0, 0}, 123, "oto"},
      {"muaf", {1, 2, 0, 0, 1, 1, 0, 0, 0}, 20, "no"},       {"arac", {13, 0, 0, 0, 0, 0, 0, 0, 0}, 303, "kod"},
      {"indir", {1, 2, 0, 0, 1, 1, 0, 0, 0}, 20, "no"},      {"kaztan", {1, 20, 0, 0, 0, 0, 0, 0, 0}, 20, "grup"},
      {"entpar", {3, 3, 0, 0, 0, 0, 0, 0, 0}, 26, "grupno"}, {"sendika", {2, 1, 0, 0, 3, 1, 0, 0, 0}, 24, "kod"},
      {"cari", {2, 1, 0, 1, 1, 0, 1, 0, 0}, 28, "oto"}};
  ASSERT_EQ(Tablolar().size(), durumlar.size());
  for (std::size_t i = 0; i < durumlar.size(); ++i) {
    const TabloTanimi& t = Tablolar()[i];
    const auto& [ad, tipler, harf, anahtar] = durumlar[i];
    SCOPED_TRACE(ad);
    std::vector<int> sayilan(tipler.size());
    int sayilanHarf = 0;
    for (const auto& a : t.alanlar) {
      ++sayilan[std::size_t(a.tip)];
      sayilanHarf += a.boyut;
    }
    EXPECT_EQ(t.ad, ad);
    EXPECT_EQ(sayilan, tipler);
    EXPECT_EQ(sayilanHarf, harf);
    const IndeksTanimi* x = t.IndeksBul(anahtar);
    EXPECT_EQ(x != nullptr && x->tekil && x->birincil, !anahtar.empty());
  }
}

TEST(Tablolar, IndexesNameColumnsAndOneIsPrimary) {
  for (const auto& t : Tablolar()) {
    int birincil = 0;
    for (const auto* liste : {&t.indeksler, &t.sorguIndeksleri})
      for (const auto& x : *liste) {
        birincil += x.birincil;
        for (const auto alan : x.alanlar) EXPECT_NE(t.AlanBul(alan), nullptr) << t.ad << "." << alan;
      }
    EXPECT_EQ(birincil, t.ad == "firma" ? 0 : 1) << t.ad;
  }
  const IndeksTanimi* kod = TabloBul("cari")->IndeksBul("KOD");
  ASSERT_NE(kod, nullptr);
  EXPECT_FALSE(kod->tekil || kod->birincil);
}

TEST(Tablolar, FlagsAndNames) {
  std::map<AlanNiteligi, std::set<std::string>> adlar;
  for (const auto& t : Tablolar())
    for (const auto& a : t.alanlar) adlar[a.nitelik].insert(std::string(t.ad) + "." + std::string(a.ad));
  using Adlar = std::set<std::string>;
  EXPECT_EQ(adlar[AlanNiteligi::Sonradan], (Adlar{"brd.rapcalismadi", "sicil.meslekkod"}));
  EXPECT_EQ(adlar[AlanNiteligi::Otomatik], (Adlar{"brd.oto", "cari.oto", "esco.oto"}));
  EXPECT_EQ(adlar[AlanNiteligi::Zorunlu],
            (Adlar{"cari.kod", "dvr.yilkod", "foto.kod", "indir.indtip", "indir.no", "kaztan.grup", "kimlik.kod",
                   "muaf.indtip", "muaf.no", "peruser.kod", "sendika.kod", "sicil.kod"}));
  EXPECT_EQ(TabloBul("SICIL")->AlanBul("GirTar")->tip, AlanTipi::Tarih);
  EXPECT_EQ(TabloBul("sicil")->AlanBul("gir"), nullptr);
  EXPECT_EQ(TabloBul("sic"), nullptr);
}

template <class Kayit>
class KayitTipi : public testing::Test {};
using Kayitlar = testing::Types<Peruser, Firma, Sicil, Foto, Kimlik, Brd, Dvr, Esco, Muaf, Arac, Indir, Kaztan, Entpar,
                                Sendika, Cari>;
TYPED_TEST_SUITE(KayitTipi, Kayitlar);

// Each column is a member of its own, and a new record is empty even in memory that was used before.
TYPED_TEST(KayitTipi, ColumnsAreMembersAndBeginEmpty) {
  alignas(TypeParam) unsigned char bellek[sizeof(TypeParam)];
  std::memset(bellek, 0xA5, sizeof bellek);
  auto* kayit = new (bellek) TypeParam;
  const TabloTanimi* tablo = TabloBul(TypeParam::TabloAdi);
  ASSERT_NE(tablo, nullptr);
  std::set<const void*> yerler;
  std::size_t i = 0;
  TypeParam::HerKolon([&](const auto& kolon) {
    using Uye = typename std::remove_cvref_t<decltype(kolon)>::UyeTuru;
    yerler.insert(&(kayit->*kolon.uye));
    EXPECT_EQ(kayit->*kolon.uye, Uye{}) << kolon.ad;
    EXPECT_EQ(tablo->alanlar.at(i++).ad, kolon.ad);
  });
  EXPECT_EQ(yerler.size(), tablo->alanlar.size());
  kayit->~TypeParam();
}

AlanTanimi Alan(AlanTipi tip, int boyut = 0, AlanNiteligi nitelik = AlanNiteligi::Serbest) {
  return {"alan", tip, boyut, nitelik};
}

using A = AlanTipi;
using I = std::int64_t;

const std::string ByteKusur = "0 ile 255 arasında bir tam sayı olmalı";
const std::string KisaKusur = "-32768 ile 32767 arasında bir tam sayı olmalı";
const std::string UzunKusur = "-2147483648 ile 2147483647 arasında bir tam sayı olmalı";
const std::string MantikKusur = "0 ile 1 arasında bir tam sayı olmalı";

TEST(DegerKusuru, LimitsOfEachType) {
  EXPECT_EQ(DegerKusuru(Alan(A::Metin, 4, AlanNiteligi::Zorunlu), Null{}), "boş bırakılamaz");
  const std::pair<AlanTanimi, std::vector<Deger>> sigan[] = {
      {Alan(A::Metin, 4), {std::string("ŞİĞÜ"), std::string(), Null{}}},
      {Alan(A::Byte), {I(0), I(255), Null{}}},
      {Alan(A::Kisa), {I(-32768), I(32767)}},
      {Alan(A::Uzun), {I(-2147483648), I(2147483647)}},
      {Alan(A::Mantik), {true, I(0)}},
      {Alan(A::Tutar), {Tutar::Hamdan(std::numeric_limits<I>::min()), 12.5, -9.1e14, I(7)}},
      {Alan(A::Tek), {1e38, I(-5)}},
      {Alan(A::Tarih), {Tarih(2008, 2, 29)}},
      {Alan(A::Ikili), {Baytlar{1}}}};
  for (const auto& [alan, degerler] : sigan)
    for (const auto& d : degerler) EXPECT_EQ(DegerKusuru(alan, d), "") << int(alan.tip) << " " << MetinDegeri(d);
  const Tablo<AlanTanimi, std::vector<Deger>, std::string> sigmayan{
      {Alan(A::Metin, 4), {std::string("ŞİĞÜÇ")}, "en çok 4 harf olabilir"},
      {Alan(A::Metin, 4), {std::string("\xDE")}, "okunamayan harf var"},
      {Alan(A::Metin, 4), {I(5), Tarih()}, "metin olmalı"},
      {Alan(A::Byte), {I(256), I(-1), 5.0, std::string("5")}, ByteKusur},
      {Alan(A::Kisa), {I(32768), I(-32769)}, KisaKusur},
      {Alan(A::Uzun), {I(2147483648), I(-2147483649)}, UzunKusur},
      {Alan(A::Mantik), {I(2), I(-1)}, MantikKusur},
      {Alan(A::Tutar), {9.2e14, std::numeric_limits<I>::min(), std::nan("")}, "sayı çok büyük"},
      {Alan(A::Tek), {-1e39, HUGE_VAL}, "sayı çok büyük"},
      {Alan(A::Tutar), {std::string("12"), true, Tarih(2008, 1, 1)}, "sayı olmalı"},
      {Alan(A::Tarih), {std::string("29.02.2008"), I(38353)}, "tarih olmalı"},
      {Alan(A::Ikili), {std::string("a")}, "bayt dizisi olmalı"}};
  for (const auto& [alan, degerler, kusur] : sigmayan)
    for (const auto& d : degerler) EXPECT_EQ(DegerKusuru(alan, d), kusur) << int(alan.tip) << " " << MetinDegeri(d);
}

TEST(MetindenDeger, Values) {
  // clang-format off
  const Tablo<AlanTanimi, const char*, Deger> durumlar{
      {Alan(A::Metin, 5), "  Ayşe\r", std::string("Ayşe")}, {Alan(A::Metin, 5), "\t a b ", std::string("a b")},
      {Alan(A::Metin, 5), "", std::string()}, {Alan(A::Byte), " 255 ", I(255)}, {Alan(A::Byte), "", I(0)},
      {Alan(A::Kisa), "2,008", I(2008)}, {Alan(A::Uzun), "05510\r", I(5510)}, {Alan(A::Mantik), "1", true},
      {Alan(A::Mantik), "", false}, {Alan(A::Tutar), "1,234.56", Tutar(1234.56)}, {Alan(A::Tutar), "", Tutar()},
      {Alan(A::Tek), "0.1", 0.1}, {Alan(A::Tek), "-0", 0.0}, {Alan(A::Tarih), " ", Null{}},
      {Alan(A::Tarih), "29.02.2008", Tarih(2008, 2, 29)}};
  // clang-format on
  for (const auto& [alan, metin, deger] : durumlar) {
    std::string kusur = "öncekinden kalan";
    EXPECT_EQ(MetindenDeger(alan, metin, kusur), deger) << int(alan.tip) << " " << metin;
    EXPECT_EQ(kusur, "") << metin;
  }
}

TEST(MetindenDeger, Faults) {
  const Tablo<AlanTanimi, std::vector<std::string>, std::string> durumlar{
      {Alan(A::Metin, 5), {"Ayşegül"}, "en çok 5 harf olabilir"},
      {Alan(A::Metin, 5), {"\xFE"}, "okunamayan harf var"},
      {Alan(A::Byte), {"256", "-1", "5.5", "beş"}, ByteKusur},
      {Alan(A::Kisa), {"32768"}, KisaKusur},
      {Alan(A::Uzun), {"99999999999999999999"}, UzunKusur},
      {Alan(A::Mantik), {"2", "evet"}, MantikKusur},
      {Alan(A::Tutar), {"1.234,56", "33,5", "999999999999999999"}, "sayı olmalı (ondalık için nokta)"},
      {Alan(A::Tek), {"33,5", std::string(50, '9'), "1e3"}, "sayı olmalı (ondalık için nokta)"},
      {Alan(A::Tarih), {"29.02.2009", "2008-02-29", "0"}, "gg.aa.yyyy biçiminde geçerli bir tarih olmalı"},
      {Alan(A::Ikili), {"a"}, "bu alan dosyadan alınamaz"}};
  for (const auto& [alan, metinler, beklenen] : durumlar)
    for (const auto& metin : metinler) {
      std::string kusur;
      EXPECT_TRUE(NullMu(MetindenDeger(alan, metin, kusur))) << metin;
      EXPECT_EQ(kusur, beklenen) << metin;
    }
}

TEST(Deger, InEveryForm) {
  // clang-format off
  const Tablo<Deger, const char*, I, double> durumlar{
      {Null{}, "", 0, 0}, {std::string("7"), "7", 0, 0}, {I(-7), "-7", -7, -7}, {0.25, "0.25", 0, 0.25},
      {Tutar(1234.5), "1234.50", 0, 1234.5}, {Tarih(2008, 2, 29), "29.02.2008", 0, 0}, {true, "1", 1, 1},
      {false, "0", 0, 0}, {Baytlar{1, 2}, "", 0, 0}};
  // clang-format on
  for (const auto& [deger, metin, tam, sayi] : durumlar) {
    SCOPED_TRACE(metin);
    EXPECT_EQ(MetinDegeri(deger), metin);
    EXPECT_EQ(TamDegeri(deger), tam);
    EXPECT_EQ(SayiDegeri(deger), sayi);
    EXPECT_EQ(TutarDegeri(deger), Tutar(sayi));
    EXPECT_EQ(MantikDegeri(deger), sayi != 0);
    EXPECT_EQ(TarihDegeri(deger).Bos(), !std::holds_alternative<Tarih>(deger));
  }
}

}  // namespace
}  // namespace belvani
