// Archives of backups: what goes in comes out, what is damaged or hostile does not. Names of kept backups, and which
// go.
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <zip.h>

#include "core/asama.h"
#include "core/dosya.h"
#include "core/saat.h"
#include "core/sinamalar.h"
#include "core/yedek/arsiv.h"
#include "core/yedek/ozet.h"
#include "core/yedek/yedekadi.h"
#include "gecici.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::GeciciDizin;
using test::Sinamalar;

std::string Ozet(std::string_view baytlar) {
  Ozetci ozet;
  ozet.Ekle(baytlar);
  return ozet.Metin();
}

struct Arsiv : testing::Test {
  GeciciDizin d;
  const std::string yol = d.Yol() + "a.zip";
  std::string buyuk;  // of several blocks, and not to be packed to nothing

  Arsiv() {
    for (const char* ad : {"kaynak", "hedef"}) EXPECT_TRUE(DizinYarat(d.Yol() + ad));
    std::uint32_t x = 1;
    while (buyuk.size() < 700'000) buyuk += std::to_string(x = x * 1664525 + 1013904223);
    EXPECT_TRUE(DosyaYaz(d.Yol() + "kaynak/tolu.dat", buyuk) && DosyaYaz(d.Yol() + "kaynak/boş", ""));
    EXPECT_TRUE(DosyaYaz(d.Yol() + "kaynak/Işıl Şık.ini", "[a]\n"));
  }
  Durum Yaz(Ilerleme* ilerleme = nullptr) {
    YedekKunyesi kunye{.sirket = "DENEME", .unvan = "Şık\n Örgü", .zaman = "", .tur = "", .versiyon = "", .iz = ""};
    return ArsivYaz(yol, d.Yol() + "kaynak/", kunye, ilerleme);
  }
  // Of the archive as it lies there: opened, read, unpacked; the first fault.
  std::string Kusuru() const {
    const auto a = YedekArsivi::Ac(yol);
    if (!a) return a.KusurMetni();
    for (const auto& g : fs::directory_iterator(d.Yol() + "hedef")) fs::remove(g);
    const Durum okundu = a->Dogrula(nullptr), cikti = a->Cikar(d.Yol() + "hedef/", nullptr);
    EXPECT_EQ(bool(okundu), bool(cikti));
    return cikti ? "" : cikti.KusurMetni();
  }
  // An archive of anybody's making.
  void Elle(const std::vector<std::pair<std::string, std::string>>& girdiler) const {
    zip_t* z = zip_open(yol.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    for (const auto& [ad, baytlar] : girdiler)
      ASSERT_GE(zip_file_add(z, ad.c_str(), zip_source_buffer(z, baytlar.data(), baytlar.size(), 0), 0), 0);
    ASSERT_EQ(zip_close(z), 0);
  }
};

TEST_F(Arsiv, WhatGoesInComesOut) {
  ASSERT_TRUE(Yaz());
  struct stat hal {};
  ASSERT_EQ(::stat(yol.c_str(), &hal), 0);
  EXPECT_EQ(hal.st_mode & 0777, 0600u);
  EXPECT_EQ(Kusuru(), "");
  EXPECT_EQ(YedekArsivi::Ac(yol)->Kunye().unvan, "Şık Örgü");
  for (const char* ad : {"tolu.dat", "boş", "Işıl Şık.ini"})
    EXPECT_EQ(DosyaOku(d.Yol() + "hedef/" + ad), DosyaOku(d.Yol() + "kaynak/" + ad)) << ad;
  EXPECT_FALSE(Yaz()) << "what is there is not written over";
}

TEST_F(Arsiv, AnyDamageIsFound) {
  ASSERT_TRUE(Yaz());
  const std::string tam = *DosyaOku(yol);
  for (std::size_t boy = 0; boy < tam.size(); boy += 1 + tam.size() / 40) {
    ASSERT_TRUE(DosyaYaz(yol, tam.substr(0, boy)));
    EXPECT_NE(Kusuru(), "") << "cut at " << boy;
  }
  // A flipped byte is found or, in what says nothing of the contents (dates, versions), changes nothing.
  for (std::size_t yer = 0; yer < tam.size(); yer += 1 + tam.size() / 90) {
    std::string bozuk = tam;
    bozuk[yer] = char(bozuk[yer] ^ 0x55);
    ASSERT_TRUE(DosyaYaz(yol, bozuk));
    if (Kusuru().empty()) {
      EXPECT_EQ(DosyaOku(d.Yol() + "hedef/tolu.dat"), buyuk) << yer;
    }
  }
}

TEST_F(Arsiv, HostileOnesAreRefused) {
  const std::string bas = "belvani-yedek: 1\nsirket: X\n", sifir(50'000'000, '\0');
  const auto dosya = [](const std::string& ad, const std::string& baytlar, std::size_t boy) {
    return "dosya: " + Ozet(baytlar) + " " + std::to_string(boy) + " " + ad + "\n";
  };
  using Girdiler = std::vector<std::pair<std::string, std::string>>;
  const std::string kunyeBozuk = "Yedeğin künyesi bozuk";
  for (const auto& [girdiler, kusur] : Sinamalar<Girdiler, std::string>{
           {{{"tolu.dat", "a"}}, "Dosya bir şirket yedeği değil"},
           {{{".kunye", ""}, {"tolu.dat", "a"}}, kunyeBozuk},
           {{{".kunye", "belvani-yedek: 2\nsirket: X\n"}}, "Yedek programın başka bir sürümünün biçiminde"},
           {{{".kunye", bas + "dosya\n"}}, kunyeBozuk},
           {{{".kunye", std::string(5u << 20, 'x')}}, "Yedek bozuk: künyesi çok büyük"},
           {{{".kunye", bas + dosya("a", "1", 1)}}, "Yedek bozuk: künyesindeki dosyalar ile içindekiler farklı"},
           {{{".kunye", bas + dosya("a", "1", 1)}, {"b", "1"}}, "Yedek bozuk: künyesinde olmayan bir dosya var: b"},
           {{{".kunye", bas + dosya("a", "1", 1) + dosya("a", "1", 1)}, {"a", "1"}, {"b", "1"}}, kunyeBozuk},
           {{{".kunye", bas + dosya("a", "1", 1)}, {"a", "2"}}, "Yedek bozuk: a yedeklendiği gibi değil"},
           {{{".kunye", bas + dosya("a", sifir, 10)}, {"a", sifir}}, "Yedek bozuk: a künyesindeki boyda değil"}}) {
    Elle(girdiler);
    EXPECT_EQ(Kusuru(), kusur) << girdiler.front().second.substr(0, 200);
  }
  for (const std::string ad : {"../a", "/tmp/a", "b/a", "..", ".", ".gizli", "b\\a", "", "a\x1B[2J", "a\xFF"}) {
    Elle({{".kunye", bas + dosya(ad, "1", 1)}, {ad.empty() ? "x" : ad, "1"}});
    EXPECT_NE(Kusuru(), "") << ad;
  }
  EXPECT_FALSE(fs::exists(d.Yol() + "a"));
}

// The archive itself says less than it unpacks to: its sizes are written over in both places where they stand.
TEST_F(Arsiv, NoMoreComesOutThanTheRecordSays) {
  const std::string sifir(30'000'000, '\0');
  Elle({{".kunye", "belvani-yedek: 1\nsirket: X\ndosya: " + Ozet("1") + " 9 a\n"}, {"a", sifir}});
  std::string arsiv = *DosyaOku(yol);
  const auto dort = [](std::uint32_t n) { return std::string(reinterpret_cast<const char*>(&n), sizeof n); };
  int degisen = 0;
  for (std::size_t i = 0; (i = arsiv.find(dort(30'000'000), i)) != std::string::npos; ++degisen)
    arsiv.replace(i, 4, dort(9));
  ASSERT_GE(degisen, 1);
  ASSERT_TRUE(DosyaYaz(yol, arsiv));
  EXPECT_NE(Kusuru(), "");
  EXPECT_TRUE(!fs::exists(d.Yol() + "hedef/a") || fs::file_size(d.Yol() + "hedef/a") < 1'000'000);
}

struct Sayan final : Ilerleme {
  int kalan, adim = 0;
  explicit Sayan(int kacinci) : kalan(kacinci) {}
  bool Adim(std::size_t biten, std::size_t toplam) override {
    EXPECT_LE(biten, toplam);
    return ++adim < kalan;
  }
};

TEST_F(Arsiv, StoppedAnywhereItIsThrownOutOf) {
  Sayan hepsi(1'000'000);
  ASSERT_TRUE(Yaz(&hepsi));
  ASSERT_GT(hepsi.adim, 10);
  for (int no = 1; no < hepsi.adim; no += 4) {
    fs::remove(yol);
    Sayan sayan(no);
    EXPECT_THROW((void)Yaz(&sayan), Vazgecilmis) << no;
    EXPECT_EQ(Kusuru().empty(), false) << no;
  }
}

TEST(YedekAdi, SaysWhenAndWhy) {
  for (const YedekTuru tur : YedekTurleri)
    for (const int sira : {1, 2, 14}) {
      const YedekAdi ad{.gun = Tarih(2026, 11, 2), .saat = "061011", .sira = sira, .tur = tur};
      EXPECT_EQ(YedekAdi::Oku(ad.Metin()), ad) << ad.Metin();
      EXPECT_EQ(ad.Zaman(), "02.11.2026 06:10");
    }
  EXPECT_EQ((YedekAdi{Tarih(2026, 11, 2), "061011", 2, YedekTuru::Gunluk}.Metin()), "2026-11-02-061011-2-gunluk.zip");
  for (const char* ad :
       {"", ".zip", "2026-11-02.zip", "2026-11-02-061011.zip", "2026-13-02-061011-elle.zip",
        "2026-11-02-06101-elle.zip", "2026-11-02-06101x-elle.zip", "2026-11-02-061011-baska.zip",
        "2026-11-02-061011-elle-2.zip", "2026-11-02-061011-elle.zip.part", "x2026-11-02-061011-elle.zip"})
    EXPECT_FALSE(YedekAdi::Oku(ad)) << ad;
  const SabitAn an(1'250'000'000);
  EXPECT_EQ(SimdikiYedekAdi(YedekTuru::Elle).Zaman(), AnMetni(SimdikiAn())) << "of the moment that the program goes by";
}

// A year and a half of daily backups, two on some days, and others between them.
TEST(SuresiDolanlar, TenDaysThenTwelveMonths) {
  const Tarih bugun(2026, 11, 22);
  std::vector<YedekAdi> adlar;
  for (int gun = 0; gun < 550; ++gun) {
    adlar.push_back({.gun = bugun.Ekle(-gun), .saat = "170000", .tur = YedekTuru::Gunluk});
    if (gun % 3 == 0) adlar.push_back({.gun = bugun.Ekle(-gun), .saat = "090000", .tur = YedekTuru::Gunluk});
  }
  for (const int gun : {30, 300, 500})
    for (const YedekTuru tur : {YedekTuru::Elle, YedekTuru::Silme})
      adlar.push_back({.gun = bugun.Ekle(-gun), .saat = "120000", .tur = tur});
  const auto gidenler = SuresiDolanlar(adlar, bugun);
  std::vector<std::string> kalan;
  for (const YedekAdi& ad : adlar)
    if (std::ranges::find(gidenler, ad) == gidenler.end()) kalan.push_back(ad.Metin().substr(0, 21));
  std::ranges::sort(kalan);
  EXPECT_EQ(kalan,
            (std::vector<std::string>{
                "2025-07-10-120000-ell", "2025-12-31-170000-gun", "2026-01-26-120000-ell", "2026-01-26-120000-sil",
                "2026-01-31-170000-gun", "2026-02-28-170000-gun", "2026-03-31-170000-gun", "2026-04-30-170000-gun",
                "2026-05-31-170000-gun", "2026-06-30-170000-gun", "2026-07-31-170000-gun", "2026-08-31-170000-gun",
                "2026-09-30-170000-gun", "2026-10-23-120000-ell", "2026-10-23-120000-sil", "2026-10-31-170000-gun",
                "2026-11-12-170000-gun", "2026-11-13-170000-gun", "2026-11-14-170000-gun", "2026-11-15-170000-gun",
                "2026-11-16-170000-gun", "2026-11-17-170000-gun", "2026-11-18-170000-gun", "2026-11-19-170000-gun",
                "2026-11-20-170000-gun", "2026-11-21-170000-gun", "2026-11-22-170000-gun"}));
  EXPECT_TRUE(SuresiDolanlar({}, bugun).empty());
}

}  // namespace
}  // namespace belvani
