// The schema: facts of the tables, limits of the columns, values from texts.
#include "core/tables/tablolar.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <new>
#include <set>

#include "core/sinamalar.h"
#include "core/tables/bordronosu.h"

namespace belvani {
namespace {

using test::Sinamalar;

// Counts of the columns by type, in the order of AlanTipi, and the letters of all texts together.
TEST(Tablolar, ColumnsTypesSizesKeys) {
  const Sinamalar<std::string_view, std::vector<int>, int, std::string_view> durumlar{
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
        for (const auto alan : x.alanlar) EXPECT_NE(t.AlanBul(IndeksKolonu(alan)), nullptr) << t.ad << "." << alan;
      }
    EXPECT_EQ(birincil, t.ad == "firma" ? 0 : 1) << t.ad;
  }
  const IndeksTanimi* kod = TabloBul("cari")->IndeksBul("KOD");
  EXPECT_TRUE(kod != nullptr && !kod->tekil && !kod->birincil);
  EXPECT_EQ(TabloBul("SICIL")->AlanBul("GirTar")->tip, AlanTipi::Tarih);
  EXPECT_EQ(TabloBul("sicil")->AlanBul("gir"), nullptr);
  EXPECT_EQ(TabloBul("sic"), nullptr);
}

TEST(Tablolar, FlagsOfColumns) {
  std::map<AlanNiteligi, std::set<std::string>> adlar;
  for (const auto& t : Tablolar())
    for (const auto& a : t.alanlar) adlar[a.nitelik].insert(std::string(t.ad) + "." + std::string(a.ad));
  using Adlar = std::set<std::string>;
  EXPECT_EQ(adlar[AlanNiteligi::Sonradan], (Adlar{"brd.rapcalismadi", "sicil.meslekkod"}));
  EXPECT_EQ(adlar[AlanNiteligi::Otomatik], (Adlar{"brd.oto", "cari.oto", "esco.oto"}));
  EXPECT_EQ(adlar[AlanNiteligi::Zorunlu],
            (Adlar{"cari.kod", "dvr.yilkod", "foto.kod", "indir.indtip", "indir.no", "kaztan.grup", "kimlik.kod",
                   "muaf.indtip", "muaf.no", "peruser.kod", "sendika.kod", "sicil.kod"}));
}

template <class Kayit>
void BosBaslar() {
  alignas(Kayit) unsigned char bellek[sizeof(Kayit)];
  std::memset(bellek, 0xA5, sizeof bellek);
  auto* kayit = new (bellek) Kayit;
  Kayit::HerKolon([&](const auto& kolon) {
    EXPECT_EQ(kayit->*kolon.uye, typename std::remove_cvref_t<decltype(kolon)>::UyeTuru{}) << kolon.ad;
  });
  kayit->~Kayit();
}

// Columns of every type among them.
TEST(Tablolar, RecordsBeginEmptyInMemoryThatWasUsedBefore) {
  BosBaslar<Firma>();
  BosBaslar<Sicil>();
  BosBaslar<Brd>();
  BosBaslar<Foto>();
}

AlanTanimi Alan(AlanTipi tip, AlanNiteligi nitelik = AlanNiteligi::Serbest) {
  return {"alan", tip, tip == AlanTipi::Metin ? 4 : 0, nitelik};
}

using A = AlanTipi;
using I = std::int64_t;

// clang-format off
// Values that fit, values that do not, and what is said of these.
TEST(DegerKusuru, LimitsOfEachType) {
  const Sinamalar<AlanTipi, std::vector<Deger>, std::vector<Deger>, std::string> durumlar{
      {A::Metin, {std::string("ŞİĞÜ"), std::string(), Null{}}, {std::string("ŞİĞÜÇ")}, "en çok 4 harf olabilir"},
      {A::Metin, {}, {std::string("\xDE")}, "okunamayan harf var"},
      {A::Metin, {}, {I(5), Tarih()}, "metin olmalı"},
      {A::Byte, {I(0), I(255), Null{}}, {I(256), I(-1), 5.0}, "0 ile 255 arasında bir tam sayı olmalı"},
      {A::Kisa, {I(-32768), I(32767)}, {I(32768), I(-32769)}, "-32768 ile 32767 arasında bir tam sayı olmalı"},
      {A::Uzun, {I(-2147483648), I(2147483647)}, {I(2147483648), I(-2147483649)},
       "-2147483648 ile 2147483647 arasında bir tam sayı olmalı"},
      {A::Mantik, {true, I(0)}, {I(2), I(-1)}, "0 ile 1 arasında bir tam sayı olmalı"},
      {A::Tutar, {Tutar::Hamdan(std::numeric_limits<I>::min()), 12.5, -9.1e14, I(7)},
       {9.2e14, std::numeric_limits<I>::min(), std::nan("")}, "sayı çok büyük"},
      {A::Tutar, {}, {std::string("12"), true, Tarih(2008, 1, 1)}, "sayı olmalı"},
      {A::Tek, {1e38, I(-5)}, {-1e39, HUGE_VAL}, "sayı çok büyük"},
      {A::Tarih, {Tarih(2008, 2, 29)}, {std::string("29.02.2008"), I(38353)}, "tarih olmalı"},
      {A::Ikili, {Baytlar{1}}, {std::string("a")}, "bayt dizisi olmalı"}};
  for (const auto& [tip, sigan, sigmayan, kusur] : durumlar) {
    for (const auto& d : sigan) EXPECT_EQ(DegerKusuru(Alan(tip), d), "") << kusur << " " << MetinDegeri(d);
    for (const auto& d : sigmayan) EXPECT_EQ(DegerKusuru(Alan(tip), d), kusur) << MetinDegeri(d);
  }
  EXPECT_EQ(DegerKusuru(Alan(A::Metin, AlanNiteligi::Zorunlu), Null{}), "boş bırakılamaz");
}

// What may be entered is less than what the column holds.
TEST(DegerKusuru, LimitsOfColumns) {
  const Sinamalar<AlanTanimi, std::vector<Deger>, std::vector<Deger>, std::string> durumlar{
      {sicil::ucrettipi, {I(0), I(2), Null{}}, {I(3), I(255)}, "0 ile 2 arasında olmalı"},
      {muaf::no, {I(1), I(11)}, {I(0), I(12)}, "1 ile 11 arasında olmalı"},
      {brd::ng, {I(0), I(30)}, {I(31)}, "en çok 30 olabilir"},
      {brd::fm1, {239.5, 240.0}, {240.25}, "en çok 240 olabilir"},
      {sicil::ucret, {Tutar(), Tutar(99'999'999'999'999)}, {Tutar::Hamdan(-1)}, "eksi olamaz"}};
  for (const auto& [alan, sigan, sigmayan, kusur] : durumlar) {
    for (const auto& d : sigan) EXPECT_EQ(DegerKusuru(alan, d), "") << alan.ad << " " << MetinDegeri(d);
    for (const auto& d : sigmayan) {
      EXPECT_EQ(DegerKusuru(alan, d), kusur) << alan.ad;
      EXPECT_EQ(TipKusuru(alan, d), "") << alan.ad << ": the store keeps it";
    }
    std::string metinKusuru;
    for (const auto& d : sigmayan) EXPECT_TRUE(NullMu(MetindenDeger(alan, MetinDegeri(d), metinKusuru)));
    EXPECT_EQ(metinKusuru, kusur);
  }
  EXPECT_EQ(EnBuyukGirdi(brd::ng), 30);
  EXPECT_EQ(EnBuyukGirdi(brd::ay), 12);
  EXPECT_EQ(EnBuyukGirdi(brd::no), 255);
}

TEST(MetindenDeger, ValuesAndFaults) {
  const Sinamalar<AlanTipi, const char*, Deger> degerler{
      {A::Metin, "\t Aş e \r", std::string("Aş e")}, {A::Metin, "", std::string()}, {A::Byte, " 255 ", I(255)},
      {A::Byte, "", I(0)}, {A::Kisa, "2,008", I(2008)}, {A::Uzun, "05510\r", I(5510)}, {A::Mantik, "1", true},
      {A::Mantik, "", false}, {A::Tutar, "1,234.56", Tutar(1234.56)}, {A::Tutar, "", Tutar()}, {A::Tek, "0.1", 0.1},
      {A::Tek, "-0", 0.0}, {A::Tarih, " ", Null{}}, {A::Tarih, "29.02.2008", Tarih(2008, 2, 29)}};
  const Sinamalar<AlanTipi, std::vector<const char*>, std::string> kusurlar{
      {A::Metin, {"Ayşegül"}, "en çok 4 harf olabilir"},
      {A::Byte, {"256", "-1", "5.5", "beş"}, "0 ile 255 arasında bir tam sayı olmalı"},
      {A::Uzun, {"2147483648", "99999999999999999999"}, "-2147483648 ile 2147483647 arasında bir tam sayı olmalı"},
      {A::Mantik, {"2", "evet"}, "0 ile 1 arasında bir tam sayı olmalı"},
      {A::Tutar, {"1.234,56", "33,5", "999999999999999999"}, "sayı olmalı (ondalık için nokta)"},
      {A::Tek, {"33,5", "99999999999999999999999999999999999999999999999999"}, "sayı olmalı (ondalık için nokta)"},
      {A::Tarih, {"29.02.2009", "2008-02-29"}, "gg.aa.yyyy biçiminde geçerli bir tarih olmalı"},
      {A::Ikili, {"a"}, "bu alan dosyadan alınamaz"}};
  std::string kusur = "öncekinden kalan";
  for (const auto& [tip, metin, deger] : degerler) {
    EXPECT_EQ(MetindenDeger(Alan(tip), metin, kusur), deger) << metin;
    EXPECT_EQ(kusur, "") << metin;
  }
  for (const auto& [tip, metinler, beklenen] : kusurlar)
    for (const char* metin : metinler) {
      EXPECT_TRUE(NullMu(MetindenDeger(Alan(tip), metin, kusur))) << metin;
      EXPECT_EQ(kusur, beklenen) << metin;
    }
}

TEST(Deger, InEveryForm) {
  const Sinamalar<Deger, const char*, I, double> durumlar{
      {Null{}, "", 0, 0}, {std::string("7"), "7", 0, 0}, {I(-7), "-7", -7, -7}, {0.25, "0.25", 0, 0.25},
      {Tutar(1234.5), "1234.50", 0, 1234.5}, {Tarih(2008, 2, 29), "29.02.2008", 0, 0}, {true, "1", 1, 1},
      {false, "0", 0, 0}, {Baytlar{1, 2}, "", 0, 0}};
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
// clang-format on

}  // namespace
}  // namespace belvani
