// Shortcuts: what is written is read, and garbage empties the desktop without a crash.
#include "core/session/kisayol.h"

#include "core/dosya.h"
#include "core/session/ornekoturum.h"
#include "core/sinamalar.h"

namespace belvani {
namespace {

using test::Sinamalar;
using Liste = std::vector<Kisayol>;

struct KisayolTest : test::OrnekOturum {
  KisayolTest() { o.PrgPath = d.Yol(); }
  Liste Oku() { return *KisayollariOku(o); }
};

std::string KezGecer(int kez, const char* harf) {
  std::string s;
  for (; kez > 0; --kez) s += harf;
  return s;
}

TEST_F(KisayolTest, FirstRunThenKeptInOrder) {
  for (const auto& k : Oku()) EXPECT_EQ(KisayolProgramlari.at(k.program), k.ad);
  EXPECT_EQ(Oku(), IlkKisayollar());
  const Liste liste{{"İşe Davet ğüşıöç", 40, "ikon/davet.svg", "--ay 7"},
                    {KezGecer(40, "Ş"), 0, KezGecer(48, "ı"), KezGecer(40, "İ")},
                    {"Bordro", 50, "", ""}};
  ASSERT_TRUE(KisayollariYaz(o, liste));
  EXPECT_EQ(std::filesystem::file_size(d.Yol() + "tolu.icn"), 3 * 129u);
  EXPECT_EQ(Oku(), liste);
  EXPECT_FALSE(KisayolSil(o, 3));
  ASSERT_TRUE(KisayolSil(o, 1));
  EXPECT_EQ(Oku(), (Liste{liste[0], liste[2]}));
  ASSERT_TRUE(KisayollariYaz(o, Liste(100, liste[1])));
  EXPECT_EQ(Oku().size(), 100u);
  ASSERT_TRUE(KisayollariYaz(o, {}));
  EXPECT_EQ(Oku(), Liste{}) << "an emptied desktop is no first run";
}

TEST_F(KisayolTest, WhatDoesNotFitIsRefusedWhole) {
  const Kisayol iyi{"İyi", 1, "", ""};
  ASSERT_TRUE(KisayollariYaz(o, {iyi}));
  // clang-format off
  for (const auto& [k, kusur] : Sinamalar<Kisayol, std::string>{
           {{" ", 1, "", ""}, "Kısa yolun adı boş olamaz"}, {{"x", 51, "", ""}, "Kısa yolun programı seçilmemiş: x"},
           {{KezGecer(41, "ş"), 1, "", ""}, "Kısa Yol Adı: en çok 40 harf olabilir"},
           {{"x\ny", 1, "", "日本"}, "Kısa Yol Adı: kullanılamayan bir harf var"},
           {{"x", 1, "", "日本"}, "Parametre: kullanılamayan bir harf var"}})
    // clang-format on
    EXPECT_EQ(KisayollariYaz(o, {iyi, k}).KusurMetni(), kusur);
  EXPECT_FALSE(KisayollariYaz(o, Liste(101, iyi)));
  EXPECT_EQ(Oku(), Liste{iyi});
}

TEST_F(KisayolTest, BrokenFile) {
  ASSERT_TRUE(KisayollariYaz(o, Liste(2, {"İyi", 1, "a", "b"})));
  const std::string saglam = *DosyaOku(d.Yol() + "tolu.icn");
  const auto boz = [&](std::size_t yer, char harf) {
    std::string s = saglam;
    s[yer] = harf;
    return s;
  };
  for (const auto& icerik : {saglam.substr(1), saglam + "x", boz(40, 51), boz(0, '\n'), boz(129 + 39, 'x'),
                             KezGecer(51, saglam.c_str()) + std::string(20'000, '\0')}) {
    ASSERT_TRUE(DosyaYaz(d.Yol() + "tolu.icn", icerik));
    EXPECT_FALSE(KisayollariOku(o) || KisayolSil(o, 0));
    EXPECT_EQ(DosyaOku(d.Yol() + "tolu.icn"), icerik);
  }
  const auto bozuk = DosyaOku(d.Yol() + "tolu.icn");
  ASSERT_TRUE(KisayollariYaz(o, {}) && KisayollariYaz(o, {}));
  EXPECT_EQ(DosyaOku(d.Yol() + "tolu.icn.bozuk"), bozuk) << "what could not be read is not lost";
}

}  // namespace
}  // namespace belvani
