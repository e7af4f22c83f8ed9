// Where the output of a command goes, and what may stand in its way.
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"
#include "core/dosya.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::CliKomutu;
using testing::AllOf;
using testing::HasSubstr;

struct Kurulum : CliKomutu {
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

// As spreadsheets of Turkish computers save, in their code page; a wage that can be read in two ways is nobody's guess.
TEST(Aktarim, NumbersOfEitherNotation) {
  const Kurulum k;
  const std::string baslik = "kod;adi;ucret;girtar\n", al = "personel-al deneme @p.csv";
  k.Yaz("p.csv", baslik + "1;\xDE\xFDk;1250,50;01.01.2009\n2;B;1.250;01.01.2009\n3;C;7,500;01.01.2009\n");
  const auto iki = k(al);
  EXPECT_EQ(iki.durum, 1);
  EXPECT_THAT(iki.mesaj, HasSubstr("satır 3, ucret: 1.250 iki türlü okunur (1,250 ya da 1250)"));
  EXPECT_THAT(iki.mesaj, HasSubstr("satır 4, ucret: 7,500 iki türlü okunur (7500 ya da 7,500)"));
  EXPECT_EQ(k(al + " --ondalik virgul").cikti, "3 kayıt eklendi, 0 kayıt değişti\n");
  EXPECT_EQ(k("hazirla deneme --yil 2009 --ay 7").durum, 0);
  EXPECT_THAT(k("bordro deneme --yil 2009 --ay 7 --bicim csv").cikti,
              AllOf(HasSubstr("Şık"), HasSubstr("1250.50"), HasSubstr("1250.00")));
  k.Yaz("g.csv", "kod;yrd01\n1;1,000\n");
  EXPECT_THAT(k("hazirla deneme --yil 2009 --ay 7 --giris @g.csv").mesaj, HasSubstr("satır 2, yrd01: 1,000 iki türlü"));
  EXPECT_EQ(k("hazirla deneme --yil 2009 --ay 7 --giris @g.csv --ondalik nokta").durum, 0);
}

TEST(Aktarim, TheScreenShowsAHundredProblemsAndTheFileAll) {
  const Kurulum k;
  std::string csv = "kod,girtar,ucret\n";
  for (int i = 1; i <= 20'000; ++i) csv += std::to_string(i) + ",31.02.2009,x\x1b[2J\n";
  k.Yaz("p.csv", csv + "4\xE2\x80\x8B,01.01.2009,1\n");
  const auto c = k("personel-al deneme @p.csv --sorunlar @s.txt");
  EXPECT_EQ(c.durum, 1);
  EXPECT_EQ(std::ranges::count(c.mesaj, '\n'), 102);
  EXPECT_THAT(c.mesaj, HasSubstr("… toplam 40001 sorun, hepsi: " + k.dizin.Yol() + "s.txt"));
  EXPECT_EQ(c.mesaj.find('\x1b'), std::string::npos);
  const std::string hepsi = k.Oku("s.txt");
  EXPECT_EQ(std::ranges::count(hepsi, '\n'), 40001);
  EXPECT_THAT(hepsi, HasSubstr("satır 20002, kod: görünmeyen bir harf var"));
}

}  // namespace
}  // namespace belvani
