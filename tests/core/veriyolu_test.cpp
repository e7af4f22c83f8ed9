// The place of data: what is written whole is read whole, a place keeps to itself, and one writer waits for the other.
#include "core/veriyolu.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

#include "core/ini.h"
#include "core/tutamak.h"
#include "core/yarimdizin.h"
#include "gecici.h"

namespace belvani {
namespace {

TEST(VeriYolu, FilesAndPlacesByName) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol();
  ASSERT_TRUE(veri.Alt("ŞİLE").Yarat());
  std::filesystem::create_directory(dizin.Yol() + ".gizli");
  EXPECT_TRUE(veri.Yaz("kanun.dat", std::string("\0b", 2)));
  EXPECT_EQ(veri.Oku("kanun.dat"), std::string("\0b", 2));
  EXPECT_EQ(veri.Alt("ŞİLE").Oku("kanun.dat"), std::nullopt) << "each place has its own files";
  EXPECT_EQ(veri.Dosyalar(), std::vector<std::string>{"kanun.dat"});
  EXPECT_EQ(veri.Altlar(), std::vector<std::string>{"ŞİLE"});
  EXPECT_EQ(veri.Alt("ŞİLE").Adres("tolu.dat"), dizin.Yol() + "ŞİLE/tolu.dat");
  EXPECT_FALSE(veri.AltVar("..") || veri.AltVar("") || veri.AltVar("kanun.dat") || veri.AltVar("YOK"));
  EXPECT_TRUE(veri.Sil("kanun.dat") && veri.Sil("kanun.dat"));
  EXPECT_FALSE(veri.Var("kanun.dat"));
}

TEST(VeriYolu, TellsAnAbsentFileFromAnUnreadableOne) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol();
  ASSERT_TRUE(veri.Yaz("buyuk.dat", "12345678"));
  std::filesystem::create_directory(dizin.Yol() + "dizin.dat");
  const DosyaHali yok = veri.Bak("yok.dat"), buyuk = veri.Bak("buyuk.dat", 4), dizinHali = veri.Bak("dizin.dat");
  EXPECT_FALSE(yok.var || yok.okunamadi);
  EXPECT_TRUE(buyuk.var && !buyuk.okunamadi && buyuk.boy == 8 && buyuk.baytlar.empty());
  EXPECT_TRUE(dizinHali.var && dizinHali.okunamadi) << "it must not be written over";
  EXPECT_FALSE(veri.Alt("yok").Yaz("a.dat", "1"));
}

// A place goes out of sight whole or not at all, and what a link leads to is nobody's to remove.
TEST(VeriYolu, RemovedWhole) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol(), sile = veri.Alt("ŞİLE"), bag = veri.Alt("BAĞ");
  ASSERT_TRUE(sile.Yarat() && sile.Yaz("tolu.dat", "1") && sile.Alt("yedek").Yarat());
  std::filesystem::create_directory_symlink(dizin.Yol() + "ŞİLE", dizin.Yol() + "BAĞ");
  EXPECT_TRUE(bag.BagMi() && !sile.BagMi() && !veri.Alt("YOK").BagMi());
  EXPECT_EQ(bag.Kimlik(), sile.Kimlik());
  EXPECT_NE(sile.Kimlik(), veri.Kimlik());
  EXPECT_EQ(veri.Alt("YOK").Kimlik(), "");
  EXPECT_FALSE(YarimDizineCevir(dizin.Yol(), "ŞİLE")) << "it has a directory in it";
  std::filesystem::remove(dizin.Yol() + "ŞİLE/yedek");
  EXPECT_FALSE(YarimDizineCevir(dizin.Yol(), "BAĞ") || YarimDizineCevir(dizin.Yol(), "YOK"));
  EXPECT_TRUE(sile.Var("tolu.dat") && YarimDizinler(dizin.Yol()).empty());
  std::ofstream(dizin.Yol() + "ŞİLE/.gizli") << "x";
  const auto ad = YarimDizineCevir(dizin.Yol(), "ŞİLE");
  ASSERT_TRUE(ad && !veri.AltVar("ŞİLE"));
  EXPECT_EQ(YarimDizinler(dizin.Yol()), std::vector<std::string>{*ad});
  EXPECT_TRUE(YarimDiziniSil(dizin.Yol(), *ad) && YarimDizinler(dizin.Yol()).empty());
}

TEST(VeriYolu, OneWriterWaitsForTheOther) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol();
  auto kilit = veri.Kilitle();
  ASSERT_TRUE(kilit && *kilit);
  EXPECT_FALSE(veri.Kilitle(std::chrono::milliseconds(50)));
  kilit->reset();
  EXPECT_TRUE(veri.Kilitle(std::chrono::milliseconds(50)));
  // Two that change different keys of one file lose none.
  constexpr int adet = 25;
  const auto yaz = [&](const char* on) {
    for (int i = 0; i < adet; ++i)
      EXPECT_TRUE(IniYaz("Bolum", on + std::to_string(i), std::to_string(i), IniDosyasi(veri, "ortak.ini")));
  };
  std::thread bir(yaz, "a"), iki(yaz, "b");
  bir.join();
  iki.join();
  for (int i = 0; i < adet; ++i)
    for (const char* on : {"a", "b"})
      EXPECT_EQ(IniOku("Bolum", on + std::to_string(i), "yok", dizin.Yol() + "ortak.ini"), std::to_string(i));
}

// On a network file system, where no directory can be locked, the programs of all computers lock a file in it.
TEST(VeriYolu, AWriterOnTheNetworkIsWaitedForToo) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol();
  DosyaTutamagi baskasi(::open((dizin.Yol() + ".kilit").c_str(), O_CREAT | O_RDWR, 0660));
  struct flock hepsi {};
  hepsi.l_type = F_WRLCK;
  ASSERT_EQ(::fcntl(baskasi.No(), F_OFD_SETLK, &hepsi), 0);
  EXPECT_FALSE(veri.Kilitle(std::chrono::milliseconds(50)));
  baskasi.Kapat();
  EXPECT_TRUE(IniYaz("Bolum", "a", "1", IniDosyasi(veri, "ortak.ini")));
  EXPECT_TRUE(veri.Dosyalar() == std::vector<std::string>{"ortak.ini"}) << "the lock is no file of the place";
}

// What a killed writer has left behind holds for readers at once, and the next writer moves it.
TEST(VeriYolu, ASetThatWaitsIsReadWhereItWaits) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol();
  ASSERT_TRUE(veri.YazHepsi({{"a.dat", "1"}, {"b.dat", "1"}}));
  std::filesystem::create_directory(dizin.Yol() + ".bekleyen");
  std::ofstream(dizin.Yol() + ".bekleyen/b.dat") << "2";  // a.dat has moved already
  std::filesystem::create_directory(dizin.Yol() + ".bekleyen-x");
  std::ofstream(dizin.Yol() + ".bekleyen-x/a.dat") << "3";  // never was whole
  const auto haller = veri.BakHepsi({"a.dat", "b.dat", "yok.dat"});
  EXPECT_EQ(haller[0].baytlar + haller[1].baytlar, "12");
  EXPECT_FALSE(haller[2].var);
  ASSERT_TRUE(veri.Yaz("b.dat", "4"));
  EXPECT_EQ(veri.Oku("b.dat"), "4") << "not the one that waited";
  ASSERT_TRUE(veri.YazHepsi({{"a.dat", "5"}}));
  EXPECT_EQ(*veri.Oku("a.dat") + *veri.Oku("b.dat"), "54");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dizin.Yol()), {}), 2);
}

}  // namespace
}  // namespace belvani
