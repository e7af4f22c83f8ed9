// A company is made whole or not at all.
#include "core/session/yenisirket.h"

#include <filesystem>

#include "core/dosya.h"
#include "core/session/ornekoturum.h"
#include "core/session/sirket.h"
#include "core/session/sirketlistesi.h"
#include "kesinti.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using YeniSirketTest = test::OrnekOturum;

TEST_F(YeniSirketTest, KilledAnywhereItIsWholeOrNotThere) {
  YALNIZ_DIZINDE("writes to files are watched");
  if (!test::IzlenirMi) GTEST_SKIP() << "system calls are not watched here";
  const auto kur = [&](const std::string& veri, Oturum& yeni) {
    yeni.DataPath = veri;
    return SirketKur(yeni,
                     {.ad = "dar", .kullanici = " ali ", .sifre = "x", .kart = [](Firma& f) { f.unvan = "Örgü"; }});
  };
  const auto kes = [&](const std::string& veri, int no) {
    const auto is = [&] {
      Oturum yeni;
      (void)kur(veri, yeni);
    };
    return test::KesilenCagri(is, no);
  };
  const int hepsi = kes(d.Yol() + "tam/", 1'000'000);
  ASSERT_GT(hepsi, 100);
  int tam = 0, yarim = 0;
  for (int no = 1; no < hepsi; no += 1 + hepsi / 45) {
    SCOPED_TRACE(no);
    const std::string veri = d.Yol() + std::to_string(no) + "/";
    kes(veri, no);
    Oturum okuyan;
    okuyan.DataPath = veri;
    for (const std::string& ad : YarimSirketler(veri)) {
      ++yarim;
      EXPECT_TRUE(SirketSil(veri, ad, okuyan, b));
    }
    EXPECT_TRUE(YarimSirketler(veri).empty());
    const auto adlar = Sirketler(veri);
    ASSERT_LE(adlar.size(), 1u);
    tam += int(adlar.size());
    ASSERT_TRUE(adlar.empty() ? kur(veri, okuyan) : SirketAc(okuyan, "DAR"));
    EXPECT_EQ(okuyan.depo.peruser.KayitSayisi(), 1);
    EXPECT_TRUE(OturumAc(okuyan, "dar", "ali", "x"));
    EXPECT_EQ(okuyan.firma.unvan, "Örgü");
  }
  EXPECT_TRUE(tam > 0 && yarim > 10) << tam << " " << yarim;
}

// What the user or the card is refused for is not on the disk, and what stands under the name already stays.
TEST_F(YeniSirketTest, RefusedLeavesNothing) {
  Kur("eski");
  const Firma kart = o.firma;
  const auto uzunUnvan = [](Firma& f) { f.unvan = std::string(41, 'x'); };
  const auto sonuc = SirketKur(o, {.ad = "yeni", .kullanici = "a", .sifre = "", .kart = uzunUnvan});
  ASSERT_FALSE(sonuc);
  EXPECT_TRUE(sonuc.KusurMetni().find("en çok 40 harf") != std::string::npos) << sonuc.KusurMetni();
  EXPECT_TRUE(o.firma == kart && !o.depo.db.AcikMi());
  EXPECT_FALSE(SirketKur(o, {.ad = "yeni", .kullanici = "çokuzunad", .sifre = ""}));
  // Another one takes the name while the store is made.
  const VeriYolu veriYolu(o.DataPath);
  const auto araya = [&](Firma&) { test::BosSirket(o.DataPath, "YENİ"); };
  EXPECT_EQ(SirketKur(o, {.ad = "yeni", .kullanici = "a", .sifre = "", .kart = araya}).KusurMetni(),
            "Bu adda bir şirket var: YENİ");
  EXPECT_TRUE(veriYolu.Alt("YENİ").Dosyalar().empty());
  EXPECT_EQ(Sirketler(o.DataPath), (std::vector<std::string>{"ESKİ", "YENİ"}));
  EXPECT_TRUE(YarimSirketler(o.DataPath).empty());
  EXPECT_TRUE(b.iletiler.empty());
}

// A company that is being made is nobody's to delete.
TEST_F(YeniSirketTest, WhatIsBeingMadeIsNotTakenForAHalfOne) {
  const auto bak = [&](Firma&) {
    EXPECT_TRUE(YarimSirketler(o.DataPath).empty());
    EXPECT_FALSE(SirketSil(o.DataPath, "YENİ", Oturum(), b));
    if (test::SunucudaMi()) return;
    for (const auto& g : fs::directory_iterator(o.DataPath))
      EXPECT_FALSE(SirketSil(o.DataPath, g.path().filename().string(), Oturum(), b));
  };
  ASSERT_TRUE(SirketKur(o, {.ad = "yeni", .kullanici = "a", .sifre = "", .kart = bak}));
  EXPECT_EQ(Sirketler(o.DataPath), std::vector<std::string>{"YENİ"});
}

}  // namespace
}  // namespace belvani
