// Small files and the settings kept in them.
#include "core/dosya.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "core/ayarlar.h"
#include "core/ini.h"
#include "core/ortam.h"
#include "core/sinamalar.h"
#include "gecici.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::GeciciDizin;
using test::Maske;
using test::OrtamKoy;
using test::Sinamalar;

mode_t Izinler(const std::string& yol) {
  struct stat s {};
  return ::stat(yol.c_str(), &s) == 0 ? s.st_mode & 07777 : 0;
}

std::size_t DosyaSayisi(const std::string& dizin) {
  return std::size_t(std::distance(fs::directory_iterator(dizin), fs::directory_iterator()));
}

TEST(DosyaYaz, ReplacesAWholeFileForOwnerAndGroup) {
  const GeciciDizin d;
  const std::string yol = d.Yol() + "şirket.dat";
  for (const mode_t maske : {077u, 0u}) {
    const auto geri = Maske(maske);
    for (const std::string& icerik : {std::string("a\0b\r\n\xFF", 6), std::string(200'000, 'x'), std::string()}) {
      ASSERT_TRUE(DosyaYaz(yol, icerik));
      EXPECT_EQ(DosyaOku(yol), icerik);
      EXPECT_EQ(Izinler(yol), 0660u);
    }
  }
  EXPECT_EQ(DosyaSayisi(d.Yol()), 1u);
}

TEST(DosyaYaz, AFailureLeavesTheOldContentAndNothingElse) {
  const GeciciDizin d;
  const std::string dosya = d.Yol() + "a.dat";
  fs::create_directory(d.Yol() + "dizin");
  ASSERT_TRUE(DosyaYaz(dosya, "eski"));
  for (const auto& [yol, neden] : Sinamalar<std::string, const char*>{{d.Yol() + "dizin", "bu adda bir dizin var"},
                                                                      {dosya + "/b.dat", "yoldaki bir ad dizin değil"},
                                                                      {d.Yol() + "yok/b.dat", "dizin bulunamadı"},
                                                                      {d.Yol() + std::string(300, 'x'), "ad çok uzun"}})
    EXPECT_EQ(DosyaYaz(yol, "yeni").KusurMetni(), yol + ": dosya yazılamadı (" + neden + ")");
  const auto geri = test::DarDisk(1000);
  EXPECT_FALSE(DosyaYaz(dosya, std::string(5000, 'y')));
  EXPECT_EQ(DosyaOku(dosya), "eski");
  EXPECT_EQ(DosyaSayisi(d.Yol()) + DosyaSayisi(d.Yol() + "dizin"), 2u);
}

TEST(DosyaOku, NothingForWhatIsNoFileOrTooLarge) {
  const GeciciDizin d;
  const std::string yol = d.Yol() + "a";
  ASSERT_TRUE(DosyaYaz(yol, "12345"));
  EXPECT_EQ(DosyaOku(yol, 5), "12345");
  EXPECT_EQ(DosyaOku(yol, 4), std::nullopt);
  for (const std::string& baska : {d.Yol(), d.Yol() + "yok", std::string("/dev/zero"), std::string()})
    EXPECT_EQ(DosyaOku(baska), std::nullopt);
}

// In an office the data directory belongs to a group, which what is made below it must inherit.
TEST(Dizin, MakingAndFinding) {
  const GeciciDizin d;
  ASSERT_EQ(::chmod(d.Yol().c_str(), 02770), 0);
  for (const auto& [ad, maske] : Sinamalar<const char*, mode_t>{{"bir/iki/üç/", 077}, {"bir/iki/üç", 0}, {"dört", 0}}) {
    const auto geri = Maske(maske);
    ASSERT_TRUE(DizinYarat(d.Yol() + ad));
  }
  for (const char* ad : {"bir", "bir/iki/üç", "dört"}) {
    EXPECT_TRUE(DizinVar(d.Yol() + ad));
    EXPECT_EQ(Izinler(d.Yol() + ad), 02770u);
  }
  ASSERT_TRUE(DosyaYaz(d.Yol() + "dosya", ""));
  for (const char* ad : {"dosya", "yok", "dosya/alt"}) EXPECT_FALSE(DizinVar(d.Yol() + ad));
  EXPECT_EQ(DizinYarat(d.Yol() + "dosya/alt").KusurMetni(),
            d.Yol() + "dosya: dizin yaratılamadı (bu adda bir dosya var)");
  for (const auto& [yol, sonu] : Sinamalar<const char*, const char*>{
           {"/veri", "/veri/"}, {"/veri//", "/veri/"}, {"a/", "a/"}, {"/", "/"}, {"", "./"}})
    EXPECT_EQ(DizinSonu(yol), sonu);
}

TEST(GeciciDosya, IsNewEmptyAndInTheTemporaryDirectory) {
  const GeciciDizin d;
  const auto tmp = OrtamKoy("TMPDIR", d.Yol().c_str());
  const std::string ad = GeciciDosya();
  EXPECT_TRUE(ad.starts_with(d.Yol() + "prn")) << ad;
  EXPECT_EQ(DosyaOku(ad), "");
  EXPECT_NE(ad, GeciciDosya());
  const auto yok = OrtamKoy("TMPDIR", "/yok");
  EXPECT_EQ(GeciciDosya(), "");
}

TEST(Ayarlar, MachineAndUserValuesComeBack) {
  const GeciciDizin d;
  const auto kullanici = OrtamKoy("BELVANI_KULLANICI_DIZIN", (d.Yol() + "yeni/ben").c_str());
  const auto makine = OrtamKoy("BELVANI_MAKINE_AYAR", (d.Yol() + "ortak/personel.ini").c_str());
  EXPECT_EQ(KullaniciAyari("lastfirm", "yok"), "yok");
  ASSERT_TRUE(KullaniciAyariYaz("lastfirm", " ŞEKER ") && MakineAyariYaz("DataPath", "/srv/belvani/"));
  EXPECT_EQ(KullaniciAyari("lastfirm", "yok"), " ŞEKER ");
  EXPECT_EQ(MakineAyari("DataPath"), "/srv/belvani/");
  EXPECT_EQ(MakineAyari("PrgPath"), "");
  EXPECT_TRUE(fs::exists(d.Yol() + "yeni/ben/personel.ini") && fs::exists(d.Yol() + "ortak/personel.ini"));
}

TEST(Ayarlar, UserDirectoriesFollowTheDesktop) {
  const test::Sonunda geri[] = {OrtamKoy("BELVANI_KULLANICI_DIZIN", nullptr), OrtamKoy("HOME", "/ev/ali"),
                                OrtamKoy("XDG_CONFIG_HOME", "/ayar"), OrtamKoy("XDG_DATA_HOME", "not/absolute")};
  EXPECT_EQ(KullaniciDizini(), "/ayar/belvani/");
  EXPECT_EQ(KullaniciVeriDizini(), "/ev/ali/.local/share/belvani/");
  const auto evsiz = OrtamKoy("HOME", nullptr);
  EXPECT_EQ(KullaniciVeriDizini(), DizinSonu(::getpwuid(::geteuid())->pw_dir) + ".local/share/belvani/")
      << "never below the working directory";
}

// One account installs, the others work.
TEST(Ayarlar, OfTheMachineAreReadableByAll) {
  const GeciciDizin d;
  const auto kullanici = OrtamKoy("BELVANI_KULLANICI_DIZIN", d.Yol().c_str());
  const auto makine = OrtamKoy("BELVANI_MAKINE_AYAR", (d.Yol() + "ortak/personel.ini").c_str());
  const auto geri = Maske(077);
  for (const char* deger : {"/a/", "/b/"}) {
    ASSERT_TRUE(MakineAyariYaz("DataPath", deger));
    EXPECT_EQ(Izinler(d.Yol() + "ortak/personel.ini"), 0664u);
    EXPECT_EQ(Izinler(d.Yol() + "ortak") & 0555u, 0555u);
  }
  ASSERT_TRUE(KullaniciAyariYaz("lastfirm", "A"));
  EXPECT_EQ(Izinler(d.Yol() + "personel.ini"), 0660u) << "a user's own";
}

}  // namespace
}  // namespace belvani
