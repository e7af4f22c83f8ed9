// Small files and the settings kept in them.
#include "core/dosya.h"

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/ayarlar.h"
#include "core/tablo.h"
#include "gecici.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::GeciciDizin;
using test::Tablo;

struct Sonunda {
  std::function<void()> islev;
  ~Sonunda() { islev(); }
};

mode_t Izinler(const std::string& yol) {
  struct stat s {};
  return ::stat(yol.c_str(), &s) == 0 ? s.st_mode & 07777 : 0;
}

std::size_t DosyaSayisi(const std::string& dizin) {
  return std::size_t(std::distance(fs::directory_iterator(dizin), fs::directory_iterator()));
}

// Sets a variable of the environment, or takes it away, until the end of the scope.
Sonunda OrtamKoy(const char* ad, const char* deger) {
  const char* eski = std::getenv(ad);
  const auto metin = eski == nullptr ? std::nullopt : std::optional<std::string>(eski);
  deger == nullptr ? ::unsetenv(ad) : ::setenv(ad, deger, 1);
  return Sonunda{[=] { metin ? ::setenv(ad, metin->c_str(), 1) : ::unsetenv(ad); }};
}

TEST(DosyaYaz, ReplacesAWholeFileForOwnerAndGroup) {
  const GeciciDizin d;
  const std::string yol = d.Yol() + "şirket.dat";
  for (const mode_t maske : {077u, 0u}) {
    const Sonunda geri{[eski = ::umask(maske)] { ::umask(eski); }};
    for (const std::string& icerik : {std::string("a\0b\r\n\xFF", 6), std::string(), std::string(200'000, 'x')}) {
      ASSERT_TRUE(DosyaYaz(yol, icerik));
      EXPECT_EQ(DosyaOku(yol), icerik);
      EXPECT_EQ(Izinler(yol), 0660u);
    }
  }
  EXPECT_EQ(DosyaSayisi(d.Yol()), 1u);
}

// Writes with room for no more than `bayt` in any file: a full disk that also stops root.
Durum DoluDiskeYaz(const std::string& yol, std::string_view icerik, rlim_t bayt) {
  rlimit eski{};
  ::getrlimit(RLIMIT_FSIZE, &eski);
  const Sonunda geri{[&, isleyici = std::signal(SIGXFSZ, SIG_IGN)] {
    ::setrlimit(RLIMIT_FSIZE, &eski);
    std::signal(SIGXFSZ, isleyici);
  }};
  const rlimit dar{bayt, eski.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &dar);
  return DosyaYaz(yol, icerik);
}

TEST(DosyaYaz, AFailureLeavesTheOldContentAndNothingElse) {
  const GeciciDizin d;
  const std::string dosya = d.Yol() + "a.dat";
  fs::create_directory(d.Yol() + "dizin");
  ASSERT_TRUE(DosyaYaz(dosya, "eski"));
  for (const auto& [yol, neden] : Tablo<std::string, const char*>{{d.Yol() + "dizin", "bu adda bir dizin var"},
                                                                  {dosya + "/b.dat", "yoldaki bir ad dizin değil"},
                                                                  {d.Yol() + "yok/b.dat", "dizin bulunamadı"},
                                                                  {d.Yol() + std::string(300, 'x'), "ad çok uzun"}}) {
    const Durum sonuc = DosyaYaz(yol, "yeni");
    ASSERT_FALSE(sonuc) << yol;
    EXPECT_EQ(sonuc.HataMetni(), yol + ": dosya yazılamadı (" + neden + ")");
  }
  EXPECT_FALSE(DoluDiskeYaz(dosya, std::string(5000, 'y'), 1000));
  if (::geteuid() != 0) {
    ::chmod(d.Yol().c_str(), 0500);
    EXPECT_FALSE(DosyaYaz(dosya, "yeni"));
    ::chmod(d.Yol().c_str(), 0700);
  }
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

TEST(Dizin, MakingAndFinding) {
  const GeciciDizin d;
  const Sonunda geri{[eski = ::umask(077)] { ::umask(eski); }};
  for (const char* ad : {"bir/iki/üç/", "bir/iki/üç"}) ASSERT_TRUE(DizinYarat(d.Yol() + ad));
  for (const char* ad : {"bir", "bir/iki/üç"}) EXPECT_EQ(Izinler(d.Yol() + ad), 0770u);
  ASSERT_TRUE(DosyaYaz(d.Yol() + "dosya", ""));
  EXPECT_TRUE(DizinVar(d.Yol() + "bir/iki/üç"));
  for (const char* ad : {"dosya", "yok", "dosya/alt"}) EXPECT_FALSE(DizinVar(d.Yol() + ad));
  EXPECT_EQ(DizinYarat(d.Yol() + "dosya/alt").HataMetni(),
            d.Yol() + "dosya: dizin yaratılamadı (bu adda bir dosya var)");
  EXPECT_FALSE(DizinYarat(d.Yol() + std::string(300, 'x')));
  for (const auto& [yol, sonu] : Tablo<const char*, const char*>{
           {"/veri", "/veri/"}, {"/veri/", "/veri/"}, {"/veri//", "/veri/"}, {"a", "a/"}, {"/", "/"}, {"", "./"}})
    EXPECT_EQ(DizinSonu(yol), sonu);
}

// In an office the data directory belongs to a group, which what is made below it must inherit.
TEST(Dizin, AnInheritedGroupStays) {
  const GeciciDizin d;
  ASSERT_EQ(::chmod(d.Yol().c_str(), 02770), 0);
  const Sonunda geri{[eski = ::umask(0)] { ::umask(eski); }};
  ASSERT_TRUE(DizinYarat(d.Yol() + "firma"));
  EXPECT_EQ(Izinler(d.Yol() + "firma"), 02770u);
}

TEST(GeciciDosya, IsNewEmptyAndInTheTemporaryDirectory) {
  const GeciciDizin d;
  const Sonunda tmp = OrtamKoy("TMPDIR", d.Yol().c_str());
  const std::string ad = GeciciDosya();
  EXPECT_TRUE(ad.starts_with(d.Yol() + "prn")) << ad;
  EXPECT_EQ(DosyaOku(ad), "");
  EXPECT_NE(ad, GeciciDosya());
  const Sonunda yok = OrtamKoy("TMPDIR", "/yok");
  EXPECT_EQ(GeciciDosya(), "");
}

TEST(Ayarlar, MachineAndUserValuesComeBack) {
  const GeciciDizin d;
  const Sonunda kullanici = OrtamKoy("BELVANI_KULLANICI_DIZIN", (d.Yol() + "yeni/ben").c_str());
  const Sonunda makine = OrtamKoy("BELVANI_MAKINE_AYAR", (d.Yol() + "ortak/personel.ini").c_str());
  EXPECT_EQ(KullaniciAyari("lastfirm", "yok"), "yok");
  EXPECT_EQ(MakineAyari("DataPath"), "");
  ASSERT_TRUE(KullaniciAyariYaz("lastfirm", "ŞEKER") && KullaniciAyariYaz("lastuser", " ığdır "));
  ASSERT_TRUE(MakineAyariYaz("DataPath", "/srv/belvani/"));
  EXPECT_EQ(KullaniciAyari("lastfirm", "yok"), "ŞEKER");
  EXPECT_EQ(KullaniciAyari("lastuser", "yok"), " ığdır ");
  EXPECT_EQ(MakineAyari("DataPath"), "/srv/belvani/");
  EXPECT_EQ(MakineAyari("PrgPath"), "");
  EXPECT_TRUE(fs::exists(d.Yol() + "yeni/ben/personel.ini") && fs::exists(d.Yol() + "ortak/personel.ini"));
}

TEST(Ayarlar, UserDirectoriesFollowTheDesktop) {
  const Sonunda geri[] = {OrtamKoy("BELVANI_KULLANICI_DIZIN", nullptr), OrtamKoy("HOME", "/ev/ali"),
                          OrtamKoy("XDG_CONFIG_HOME", "/ayar"), OrtamKoy("XDG_DATA_HOME", "not/absolute"),
                          OrtamKoy("XDG_CACHE_HOME", nullptr)};
  EXPECT_EQ(KullaniciDizini(), "/ayar/belvani/");
  EXPECT_EQ(KullaniciVeriDizini(), "/ev/ali/.local/share/belvani/");
  EXPECT_EQ(OnbellekDizini(), "/ev/ali/.cache/belvani/");
}

}  // namespace
}  // namespace belvani
