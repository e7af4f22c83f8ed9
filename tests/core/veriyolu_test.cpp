// The place of data: what is written whole is read whole, a place keeps to itself, and one writer waits for the other.
#include "core/veriyolu.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

#include "core/ini.h"
#include "core/tutamak.h"
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
  EXPECT_FALSE(veri.YarimaCevir("ŞİLE")) << "it has a directory in it";
  std::filesystem::remove(dizin.Yol() + "ŞİLE/yedek");
  EXPECT_FALSE(veri.YarimaCevir("BAĞ") || veri.YarimaCevir("YOK"));
  EXPECT_TRUE(sile.Var("tolu.dat") && veri.YarimAltlar().empty());
  std::ofstream(dizin.Yol() + "ŞİLE/.gizli") << "x";
  const auto ad = veri.YarimaCevir("ŞİLE");
  ASSERT_TRUE(ad && !veri.AltVar("ŞİLE"));
  EXPECT_EQ(veri.YarimAltlar(), std::vector<std::string>{*ad});
  EXPECT_TRUE(ad->starts_with('.')) << "what every maker's half places are known by";
  EXPECT_TRUE(veri.YarimSil(*ad) && veri.YarimAltlar().empty());
}

// A new place is in no list until it has its name, takes nobody's, and replaces one only where that is wanted.
TEST(VeriYolu, MadeWhole) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol();
  const auto doldur = [&](const YarimYer& yer, const char* bayt) {
    return bool(VeriYolu(yer.Adres()).Yaz("sablon.dat", bayt));
  };
  {
    auto birakilan = veri.YarimAlt("ŞİLE");
    ASSERT_TRUE(birakilan && doldur(**birakilan, "1"));
    EXPECT_TRUE(veri.Altlar().empty() && veri.YarimAltlar().empty()) << "someone is at it";
  }
  EXPECT_TRUE(std::filesystem::is_empty(dizin.Yol()));
  auto bir = veri.YarimAlt("ŞİLE"), iki = veri.YarimAlt("ŞİLE"), donen = veri.YarimAlt("ŞİLE", YarimTuru::Donen);
  ASSERT_TRUE(bir && iki && donen && doldur(**bir, "1") && doldur(**iki, "2") && doldur(**donen, "3"));
  EXPECT_TRUE((*bir)->Adlandir());
  EXPECT_FALSE((*iki)->Adlandir());
  EXPECT_EQ(veri.Alt("ŞİLE").Oku("sablon.dat"), "1");
  EXPECT_TRUE((*donen)->YerineGec());
  EXPECT_EQ(veri.Alt("ŞİLE").Oku("sablon.dat"), "3");
  EXPECT_EQ(VeriYolu((*donen)->Adres()).Oku("sablon.dat"), "1") << "until the object goes";
  iki->reset();
  donen->reset();
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dizin.Yol()), {}), 1);
}

TEST(VeriYolu, FilesOfAnySizeComeAndGo) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = VeriYolu(dizin.Yol()).Alt("ŞİLE");
  ASSERT_TRUE(veri.Yarat());
  const std::string buyuk = std::string(100'000, 'b') + '\0', disarida = dizin.Yol() + "disari";
  std::ofstream(disarida) << buyuk;
  ASSERT_TRUE(veri.Yaz("a.dat", "eski") && veri.DosyadanKoy("a.dat", disarida));
  EXPECT_EQ(veri.Oku("a.dat"), buyuk);
  EXPECT_FALSE(veri.DosyadanKoy("a.dat", dizin.Yol() + "yok") || veri.DosyadanKoy("a.dat", dizin.Yol()));
  EXPECT_TRUE(veri.Oku("a.dat") == buyuk && veri.Dosyalar().size() == 1);
  EXPECT_FALSE(veri.DosyayaAl("a.dat", disarida)) << "what is there is nobody's to replace";
  EXPECT_FALSE(veri.DosyayaAl("yok.dat", dizin.Yol() + "yok"));
  std::filesystem::create_directory(veri.Adres(".bekleyen"));
  std::ofstream(veri.Adres(".bekleyen/a.dat")) << "yeni";
  ASSERT_TRUE(veri.DosyayaAl("a.dat", dizin.Yol() + "alinan"));
  EXPECT_EQ(VeriYolu(dizin.Yol()).Oku("alinan"), "yeni") << "a set that waits holds already";
}

TEST(VeriYolu, MarksOfAllPlacesAtOnce) {
  const test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol();
  for (const char* ad : {"A", "B", "BOS"}) ASSERT_TRUE(veri.Alt(ad).Yarat());
  ASSERT_TRUE(veri.IsaretKoy("kendi", "0") && veri.Alt("A").IsaretKoy("x", "1") && veri.Alt("B").IsaretKoy("y", "2"));
  std::string hepsi;
  for (const AltIsareti& i : veri.AltIsaretleri()) hepsi += i.alt + i.isaret.ad + i.isaret.baytlar + " ";
  EXPECT_TRUE(hepsi == "Ax1 By2 " || hepsi == "By2 Ax1 ") << hepsi;
}

// An address that no maker takes is an empty place in which everything fails with the reason, and no directory.
TEST(VeriYolu, AServerOutOfReachIsToldAndTouchesNoDisk) {
  const test::GeciciDizin dizin;
  const std::filesystem::path onceki = std::filesystem::current_path();
  const VeriMakinesiYapici yapici = SunucuYapicisiKoy(nullptr);
  std::filesystem::current_path(dizin.Yol());
  for (const auto& [adres, neden] : {std::pair("postgresql://s/b", "s/b: bu program"),
                                     std::pair("postgresql://ayse:gizli@s/b", "şifre bulunamaz")}) {
    const VeriYolu veri = adres, sirket = veri.Alt("ŞİLE");
    ASSERT_FALSE(veri.Erisim());
    EXPECT_NE(sirket.Erisim().KusurMetni().find(neden), std::string::npos) << sirket.Erisim().KusurMetni();
    EXPECT_TRUE(veri.Sunucuda() && veri.Altlar().empty() && !veri.AltVar("ŞİLE"));
    EXPECT_FALSE(veri.Yarat() || veri.YarimAlt("ŞİLE") || sirket.Yaz("a.dat", "1") || sirket.Kilitle());
    EXPECT_EQ(sirket.Adres("a.dat").find("gizli"), std::string::npos);
    EXPECT_TRUE(sirket.Bak("a.dat").okunamadi) << "it must not be written over";
  }
  EXPECT_EQ(VeriYolu("postgresql://s/b/").Alt("ŞİLE").Adres("tolu.dat"), "postgresql://s/b#ŞİLE/tolu.dat");
  EXPECT_TRUE(VeriYolu(dizin.Yol()).Erisim() && !VeriYolu(dizin.Yol()).Sunucuda());
  EXPECT_TRUE(std::filesystem::is_empty(dizin.Yol()));
  std::filesystem::current_path(onceki);
  SunucuYapicisiKoy(yapici);
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
