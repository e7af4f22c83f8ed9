// Files that the user names: what stands there decides how they are written.
#include "core/hedef.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "core/dosya.h"
#include "core/gecici.h"
#include "core/kaynak.h"
#include "core/ortam.h"
#include "core/sinamalar.h"
#include "gecici.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::GeciciDizin;
using test::Sinamalar;
using testing::HasSubstr;

struct stat Hal(const std::string& yol) {
  struct stat hal {};
  ::stat(yol.c_str(), &hal);
  return hal;
}

std::vector<std::string> Adlar(const std::string& dizin) {
  std::vector<std::string> adlar;
  for (const auto& g : fs::directory_iterator(dizin)) adlar.push_back(g.path().filename());
  std::sort(adlar.begin(), adlar.end());
  return adlar;
}

TEST(HedefDosya, AFileIsReplacedWholeWithItsModeAtTheEndOfItsLinks) {
  const GeciciDizin d;
  const std::string dosya = d.Yol() + "asıl/rapor.csv";
  fs::create_directory(d.Yol() + "asıl");
  ASSERT_TRUE(HedefeYaz(dosya, "ilk"));
  EXPECT_EQ(Hal(dosya).st_mode & 07777, 0660u);
  ASSERT_EQ(::chmod(dosya.c_str(), 0604), 0);
  if (::geteuid() == 0) {
    ASSERT_EQ(::chown(dosya.c_str(), 1234, 4321), 0);
  }
  const auto once = Hal(dosya);
  fs::create_symlink("rapor.csv", d.Yol() + "asıl/iç");
  fs::create_symlink("./asıl/../asıl/iç", d.Yol() + "bağ");
  fs::create_symlink("asıl/yeni.csv", d.Yol() + "boşta");
  {
    auto hedef = HedefDosya::Ac(d.Yol() + "bağ");
    ASSERT_TRUE(hedef && hedef->Ekle("iki"));
    EXPECT_EQ(DosyaOku(dosya), "ilk") << "until the end";
    ASSERT_TRUE(hedef->Ekle("nci") && hedef->Bitir());
  }
  EXPECT_EQ(DosyaOku(dosya), "ikinci");
  EXPECT_EQ(Hal(dosya).st_mode, once.st_mode);
  EXPECT_EQ(Hal(dosya).st_uid, once.st_uid);
  EXPECT_EQ(Hal(dosya).st_gid, once.st_gid);
  EXPECT_NE(Hal(dosya).st_ino, once.st_ino);
  ASSERT_TRUE(HedefeYaz(d.Yol() + "boşta", "yeni"));
  EXPECT_EQ(DosyaOku(d.Yol() + "asıl/yeni.csv"), "yeni");
  EXPECT_TRUE(fs::is_symlink(d.Yol() + "bağ") && fs::is_symlink(d.Yol() + "boşta"));
}

TEST(HedefDosya, WhatCannotBeWrittenStaysAsItWas) {
  const GeciciDizin d;
  const std::string dosya = d.Yol() + "a.csv";
  ASSERT_TRUE(DosyaYaz(dosya, "eski"));
  fs::create_symlink("b", d.Yol() + "a");
  fs::create_symlink("a", d.Yol() + "b");
  for (const auto& [yol, neden] : Sinamalar<std::string, const char*>{{d.Yol(), "bu adda bir dizin var"},
                                                                      {dosya + "/", "yoldaki bir ad dizin değil"},
                                                                      {dosya + "/x", "yoldaki bir ad dizin değil"},
                                                                      {d.Yol() + "yok/x", "dizin bulunamadı"},
                                                                      {d.Yol() + "a", "bağlar birbirini gösteriyor"},
                                                                      {d.Yol() + std::string(300, 'x'), "ad çok uzun"},
                                                                      {"/dev/full", "disk dolu"}})
    EXPECT_EQ(HedefeYaz(yol, "yeni").KusurMetni(), yol + ": dosya yazılamadı (" + neden + ")");
  const auto geri = test::DarDisk(1000);
  EXPECT_THAT(HedefeYaz(dosya, std::string(5000, 'y')).KusurMetni(), HasSubstr("dosya çok büyük"));
  EXPECT_TRUE(HedefDosya::Ac(dosya)->Ekle("yarım"));
  EXPECT_EQ(DosyaOku(dosya), "eski");
  EXPECT_EQ(Adlar(d.Yol()), (std::vector<std::string>{"a", "a.csv", "b"}));
}

TEST(HedefDosya, DevicesPipesAndSocketsTakeTheBytesThemselves) {
  const GeciciDizin d;
  const std::string boru = d.Yol() + "boru", soket = d.Yol() + "soket";
  ASSERT_EQ(::mkfifo(boru.c_str(), 0600), 0);
  sockaddr_un adres{.sun_family = AF_UNIX, .sun_path = {}};
  soket.copy(adres.sun_path, sizeof adres.sun_path - 1);
  const DosyaTutamagi dinleyen(::socket(AF_UNIX, SOCK_STREAM, 0));
  ASSERT_EQ(::bind(dinleyen.No(), reinterpret_cast<sockaddr*>(&adres), sizeof adres), 0);
  EXPECT_THAT(HedefeYaz(soket, "x").KusurMetni(), HasSubstr("soketi dinleyen yok"));
  ASSERT_EQ(::listen(dinleyen.No(), 1), 0);
  std::string borudan, soketten;
  std::thread okuyan([&] {
    borudan = KaynakOku(boru).operator*();
    const DosyaTutamagi gelen(::accept(dinleyen.No(), nullptr, nullptr));
    char blok[16] = {};
    if (::read(gelen.No(), blok, sizeof blok - 1) > 0) soketten = blok;
  });
  EXPECT_TRUE(HedefeYaz(boru, "boruya"));
  EXPECT_TRUE(HedefeYaz(soket, "sokete"));
  okuyan.join();
  EXPECT_EQ(borudan, "boruya");
  EXPECT_EQ(soketten, "sokete");
  EXPECT_TRUE(HedefeYaz("/dev/null", "x"));
  EXPECT_TRUE(fs::is_fifo(boru) && fs::is_socket(soket) && fs::is_character_file("/dev/null"));
}

// What was written before through the descriptor stays, and what comes after stands behind.
TEST(HedefDosya, AnOpenDescriptorIsWrittenWhereItStands) {
  const GeciciDizin d;
  const std::string dosya = d.Yol() + "cikti";
  const DosyaTutamagi acik(::open(dosya.c_str(), O_CREAT | O_WRONLY, 0600));
  ASSERT_TRUE(HepsiniYaz(acik.No(), "bir "));
  const std::string no = std::to_string(acik.No());
  ASSERT_TRUE(HedefeYaz("/dev/fd/" + no, "iki "));
  ASSERT_TRUE(HedefeYaz("/proc/self/fd/" + no, "üç "));
  ASSERT_TRUE(HepsiniYaz(acik.No(), "dört"));
  EXPECT_EQ(DosyaOku(dosya), "bir iki üç dört");
}

TEST(HedefDosya, LinksThatOthersLayIntoOpenDirectoriesAreRefused) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs files of two users";
  const GeciciDizin d;
  const std::string ortak = d.Yol() + "ortak/", dosya = d.Yol() + "benim";
  fs::create_directory(ortak);
  ASSERT_EQ(::chmod(ortak.c_str(), 01777), 0);
  ASSERT_TRUE(DosyaYaz(dosya, "eski"));
  fs::create_symlink(dosya, ortak + "bağ");
  fs::create_directory_symlink(d.Yol(), ortak + "dizinbağı");
  ASSERT_EQ(::mkfifo((ortak + "boru").c_str(), 0666), 0);
  for (const char* ad : {"bağ", "dizinbağı", "boru"}) ASSERT_EQ(::lchown((ortak + ad).c_str(), 1234, 1234), 0);
  for (const char* ad : {"bağ", "dizinbağı/benim"})
    EXPECT_THAT(HedefeYaz(ortak + ad, "yeni").KusurMetni(), HasSubstr("başkasının koyduğu bir bağ")) << ad;
  EXPECT_FALSE(HedefeYaz(ortak + "boru", "yeni"));
  EXPECT_EQ(DosyaOku(dosya), "eski");
  ASSERT_EQ(::lchown((ortak + "bağ").c_str(), 0, 0), 0);
  EXPECT_TRUE(HedefeYaz(ortak + "bağ", "yeni")) << "one's own";
  EXPECT_EQ(DosyaOku(dosya), "yeni");
}

TEST(Gecici, OnlyWhatNobodyIsAtIsSwept) {
  const GeciciDizin d;
  std::string benim;
  const DosyaTutamagi acik = GeciciAc(d.Yol() + "a.dat", benim);
  ASSERT_TRUE(acik.Acik());
  const std::string bilgisayar = ".belvani-" + BilgisayarAdiBul() + "-";
  EXPECT_EQ(benim, d.Yol() + bilgisayar + std::to_string(::getpid()) + "-" + benim.substr(benim.size() - 6));
  const pid_t giden = ::fork();
  if (giden == 0) ::_exit(0);
  ::waitpid(giden, nullptr, 0);
  const std::string gidenin = bilgisayar + std::to_string(giden) + "-abcdef";
  for (const std::string& ad : {gidenin, bilgisayar + "x", std::string(".belvani-baska-1-abcdef"),
                                std::string(".belvani-baska-2-abcdef"), std::string("belvani-eski")})
    std::ofstream(d.Yol() + ad) << "x";
  const auto dun = fs::file_time_type::clock::now() - std::chrono::hours(25);
  fs::last_write_time(d.Yol() + ".belvani-baska-2-abcdef", dun);
  fs::last_write_time(d.Yol() + "belvani-eski", dun);
  GecicileriSupur(d.Yol());
  EXPECT_THAT(Adlar(d.Yol()), testing::UnorderedElementsAre(fs::path(benim).filename(), bilgisayar + "x",
                                                            ".belvani-baska-1-abcdef", "belvani-eski"));
}

TEST(KaynakOku, TheReasonWhenAFileCannotBeHad) {
  const GeciciDizin d;
  ASSERT_TRUE(DosyaYaz(d.Yol() + "a", "12345"));
  EXPECT_EQ(*KaynakOku(d.Yol() + "a", 5), "12345");
  for (const auto& [yol, neden] : Sinamalar<std::string, const char*>{{d.Yol() + "a", "4 bayt sınırından büyük"},
                                                                      {"/dev/zero", "4 bayt sınırından büyük"},
                                                                      {d.Yol(), "bu bir dizin"},
                                                                      {d.Yol() + "yok", "dosya bulunamadı"}})
    EXPECT_EQ(KaynakOku(yol, 4).KusurMetni(), "Dosya okunamadı: " + yol + " (" + neden + ")");
}

}  // namespace
}  // namespace belvani
