// Where the output of a command goes, and what may stand in its way.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"
#include "core/dosya.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::Komut;
using testing::HasSubstr;

struct Kurulum : Komut {
  Kurulum() {
    EXPECT_EQ((*this)("sirket-ac deneme --kullanici a --yil 2009 --ay 7").durum, 0);
    EXPECT_EQ((*this)("parametre-kur --donem 2009-07").durum, 0);
  }
  const std::string ozet = "icmal deneme --yil 2009 --ay 7";
};

TEST(Cikti, OneTextWhereverItGoes) {
  const Kurulum k;
  const std::string ekranda = k(k.ozet).cikti;
  ASSERT_THAT(ekranda, HasSubstr("Toplam"));
  for (const char* hedef : {"-", "/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"})
    EXPECT_EQ(k(k.ozet + " -o " + hedef).cikti, ekranda) << hedef;
  EXPECT_EQ(k(k.ozet + " -o /dev/stdout | cat").cikti, ekranda) << "a pipe";
  EXPECT_EQ(k(k.ozet + " -o @a.txt").cikti, "");
  EXPECT_EQ(k.Oku("a.txt"), ekranda);
  EXPECT_TRUE(k(k.ozet + " --bicim pdf -o -").cikti.starts_with("%PDF"));
  EXPECT_TRUE(fs::is_symlink("/dev/stdout"));
}

TEST(Cikti, AFullDiskIsTold) {
  const Kurulum k;
  for (const char* hedef : {" -o /dev/full", " -o /dev/stdout >/dev/full", " >/dev/full"}) {
    const auto c = k(k.ozet + hedef);
    EXPECT_EQ(c.durum, 1) << hedef;
    EXPECT_THAT(c.mesaj, HasSubstr("yazılamadı (disk dolu)")) << hedef;
  }
  EXPECT_EQ(k("--help >/dev/full").durum, 1);
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  // No file may grow beyond 512 bytes; the signal of that would end the program without a word.
  const std::string d = k.dizin.Yol();
  std::system(("ulimit -f 1; " BELVANI_CLI " --veri " + d + "veri parametre --json >" + d + "b 2>" + d + "c").c_str());
  EXPECT_EQ(k.Oku("c"), "Çıktı yazılamadı (dosya çok büyük)\n");
}

// What a killed program has left goes, and nothing of the user's.
TEST(Cikti, LeftoversOfTheDeadAreSweptFromTheDataPath) {
  const Kurulum k;
  const std::string olu = ".belvani-" + BilgisayarAdiBul() + "-999999999-abcdef";
  for (const std::string& dizin : {std::string("veri/"), std::string("veri/DENEME/"), std::string()})
    k.Yaz(dizin + olu, "x");
  EXPECT_EQ(k(k.ozet + " -o @a.txt").durum, 0);
  EXPECT_FALSE(fs::exists(k.dizin.Yol() + "veri/" + olu) || fs::exists(k.dizin.Yol() + "veri/DENEME/" + olu));
  EXPECT_TRUE(fs::exists(k.dizin.Yol() + olu)) << "beside the target";
}

}  // namespace
}  // namespace belvani
