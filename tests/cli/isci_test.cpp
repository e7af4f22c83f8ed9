// A process that does pieces of work for its owner: what it prints, asks, and how it dies.
#include "cli/isci.h"

#include <csignal>
#include <gtest/gtest.h>
#include <iostream>

namespace belvani::cli {
namespace {

Isci::Sonuc Sonucu(Isci& isci, std::size_t sira) {
  isci.Ver(sira);
  std::optional<Isci::Sonuc> sonuc;
  while (!sonuc) sonuc = isci.SonucuAl();
  return *std::move(sonuc);
}

TEST(Isci, WhatItPrintsBelongsToThePieceItIsAt) {
  Isci isci(
      [](std::size_t sira) {
        std::cout << "iş " << sira;
        if (sira != 1) std::cerr << "söz " << sira;
        return sira == 1 ? Bitis::Atlandi : Bitis::Yapildi;
      },
      nullptr);
  const auto ilk = Sonucu(isci, 0), ikinci = Sonucu(isci, 1), son = Sonucu(isci, 2);
  EXPECT_EQ(ilk.cikti.Metin() + "|" + ilk.mesaj.Metin(), "iş 0|söz 0");
  EXPECT_EQ(ikinci.cikti.Metin() + "|" + ikinci.mesaj.Metin(), "iş 1|");
  EXPECT_EQ(ikinci.bitis, Bitis::Atlandi);
  EXPECT_EQ(son.mesaj.Metin(), "söz 2");
}

TEST(Isci, LargeOutputComesInPiecesOfWholeLines) {
  const std::string satir = std::string(997, 'x') + "ç\n";
  Isci isci(
      [&](std::size_t) {
        for (int i = 0; i < 300; ++i) std::cout << satir;
        return Bitis::Yapildi;
      },
      nullptr);
  const auto sonuc = Sonucu(isci, 0);
  std::size_t parca = 0, boy = 0;
  sonuc.cikti.Ver([&](std::string_view metin) {
    EXPECT_TRUE(metin.ends_with("ç\n"));
    boy += metin.size();
    ++parca;
  });
  EXPECT_EQ(boy, 300 * satir.size());
  EXPECT_GT(parca, 1u);
}

TEST(Isci, ASecretIsAskedOfTheOwner) {
  int soru = 0;
  Isci isci(
      [](std::size_t sira) {
        const auto sifre = SifreSor("sunucu/belvani", sira == 0 ? "ayşe" : "kimse");
        std::cout << sifre.value_or("yok");
        return Bitis::Yapildi;
      },
      [&](const std::string& sunucu, const std::string& kullanici) {
        ++soru;
        return kullanici == "ayşe" ? std::optional(sunucu + "-gizli") : std::nullopt;
      });
  EXPECT_EQ(Sonucu(isci, 0).cikti.Metin(), "sunucu/belvani-gizli");
  EXPECT_EQ(Sonucu(isci, 1).cikti.Metin(), "yok");
  EXPECT_EQ(soru, 2) << "here, not in the other process";
}

TEST(Isci, ItsDeathIsToldWithWhatItHadSaid) {
  Isci isci(
      [](std::size_t) {
        std::cerr << "buraya kadar";
        ::raise(SIGKILL);
        return Bitis::Yapildi;
      },
      nullptr);
  const auto sonuc = Sonucu(isci, 0);
  EXPECT_EQ(sonuc.bitis, Bitis::Yapilamadi);
  EXPECT_EQ(sonuc.olum, "Bu şirkette çalışan süreç sonlandı (sinyal 9)");
  EXPECT_EQ(sonuc.mesaj.Metin(), "buraya kadar");
  EXPECT_FALSE(isci.Yasiyor());
}

}  // namespace
}  // namespace belvani::cli
