// One command over several companies: what becomes of each, in which order it is told, and what a failing company, a
// dying process and Ctrl+C cost.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

#include "calistir.h"
#include "core/store/islem.h"
#include "core/store/motor.h"
#include "surec.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::Cikti;
using test::CliKomutu;
using test::Kapi;
using test::Surec;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* Temmuz = " --yil 2009 --ay 7";

// AK, KARA and ZEYTİN with a person each, and the law of July 2009.
struct Sirketler : CliKomutu {
  Sirketler() {
    Yaz("p.csv", "kod;adi;soyadi;ucret;girtar;tcno;sskno\n001;Işıl;Çağlar;1000;01.01.2009;10000000146;34-1\n");
    Tamam("sirket-ac AK --kullanici a --yil 2009 --ay 7");
    Tamam("parametre-kur --donem 2009-07");
    Tamam("personel-al AK @p.csv");
    Tamam(std::string("hazirla AK --yil 2009 --ay 6"));
    for (const char* ad : {"KARA", "ZEYTİN"}) fs::copy(Veri("AK"), Veri(ad));
  }
  std::string Tamam(const std::string& degerler) const {
    const Cikti c = (*this)(degerler);
    EXPECT_EQ(c.durum, 0) << degerler << ": " << c.mesaj;
    return c.cikti;
  }
  std::string Veri(const std::string& ad) const { return dizin.Yol() + "veri/" + ad; }
  bool Hazir(const std::string& kod) const {
    return (*this)("bordro " + kod + " --bicim json" + Temmuz).cikti != "[]\n";
  }
  std::vector<std::string> Dosyalar(const std::string& alt) const {
    std::vector<std::string> adlar;
    for (const auto& g : fs::recursive_directory_iterator(dizin.Yol() + alt))
      if (g.is_regular_file()) adlar.push_back(fs::relative(g.path(), dizin.Yol() + alt));
    std::ranges::sort(adlar);
    return adlar;
  }
};

// The counts stand at the end of the report.
std::string SonSatir(const std::string& mesaj) {
  const auto bas = mesaj.rfind('\n', mesaj.size() - 2);
  return mesaj.substr(bas == std::string::npos ? 0 : bas + 1);
}

TEST(TopluKomut, AFailingCompanyStopsNoOtherOne) {
  const Sirketler s;
  s.Tamam("sirket-ac BOŞ --kullanici a --yil 2009 --ay 7");
  s.Yaz("veri/KARA/tolu.dat", "bozuk");
  const Cikti c = s(std::string("hazirla --hepsi -j 3") + Temmuz);
  EXPECT_EQ(c.durum, 1);
  EXPECT_THAT(c.cikti, AllOf(StartsWith("AK: Bordro Hazırlık Tamamlandı: 1 kişi"), HasSubstr("\nZEYTİN: Bordro"),
                             Not(HasSubstr("KARA")), Not(HasSubstr("BOŞ"))));
  EXPECT_THAT(c.mesaj, AllOf(HasSubstr("Atlananlar:\n  BOŞ: Bu ayda çalışan personel yok"),
                             HasSubstr("Yapılamayanlar:\n  KARA: Database Açılamadı")));
  EXPECT_EQ(SonSatir(c.mesaj), "4 şirket: 2 yapıldı, 1 atlandı, 1 yapılamadı\n");
  EXPECT_TRUE(s.Hazir("AK") && s.Hazir("ZEYTİN"));

  const Cikti kodlar = s(std::string("hazirla ZEYTİN yok ak zeytin") + Temmuz);
  EXPECT_EQ(kodlar.durum, 1);
  EXPECT_THAT(kodlar.cikti, AllOf(StartsWith("ZEYTİN: "), HasSubstr("\nAK: "))) << "as they were named, each once";
  EXPECT_THAT(kodlar.mesaj, HasSubstr("  yok: Şirket Bulunamadı: YOK\n"));
  EXPECT_EQ(SonSatir(kodlar.mesaj), "3 şirket: 2 yapıldı, 0 atlandı, 1 yapılamadı\n");

  const Cikti yalnizAtlanan = s(std::string("icmal BOŞ AK") + Temmuz);
  EXPECT_EQ(yalnizAtlanan.durum, 0) << "nothing to do is no failure";
  EXPECT_EQ(SonSatir(yalnizAtlanan.mesaj), "2 şirket: 1 yapıldı, 1 atlandı, 0 yapılamadı\n");
  EXPECT_THAT(yalnizAtlanan.cikti, StartsWith("AK:\n")) << "a paper stands below its heading";
  EXPECT_THAT(s("denetle --hepsi").mesaj, HasSubstr("KARA: Database Açılamadı"));
}

TEST(TopluKomut, WhatManySayIsSaidOnce) {
  const Sirketler s;
  const Cikti c = s("hazirla --hepsi --yil 2009 --ay 6");
  EXPECT_EQ(c.durum, 0);
  EXPECT_THAT(c.mesaj, HasSubstr("Söylenenler:\n  AK, KARA, ZEYTİN: Uyarı: Kurulu yasal parametreler Haziran 2009"));
}

TEST(TopluKomut, EachCompanyHasItsFolder) {
  const Sirketler s;
  s.Tamam("sirket-ac BOŞ --kullanici a --yil 2009 --ay 7");
  s.Tamam(std::string("hazirla --hepsi --sorunlar @sorun") + Temmuz);
  for (const char* komut : {"bordro --bicim json", "pusula --bicim pdf", "agi --bicim csv", "bildirge --bicim json"})
    EXPECT_EQ(s.Tamam(std::string(komut) + " --hepsi -o @dosyalar" + Temmuz), "");
  EXPECT_THAT(s.Dosyalar("dosyalar"),
              ElementsAre("AK/agi-2009-07.csv", "AK/bildirge-2009-07.json", "AK/bordro-2009-07.json",
                          "AK/pusula-2009-07.pdf", "KARA/agi-2009-07.csv", "KARA/bildirge-2009-07.json",
                          "KARA/bordro-2009-07.json", "KARA/pusula-2009-07.pdf", "ZEYTİN/agi-2009-07.csv",
                          "ZEYTİN/bildirge-2009-07.json", "ZEYTİN/bordro-2009-07.json", "ZEYTİN/pusula-2009-07.pdf"));
  EXPECT_EQ(s.Oku("dosyalar/KARA/bordro-2009-07.json"), s.Tamam(std::string("bordro KARA --bicim json") + Temmuz));
  EXPECT_EQ(s(std::string("bildirge --hepsi --bicim pdf -o @bos") + Temmuz).durum, 1) << "all kinds at once";
  EXPECT_TRUE(fs::is_empty(s.dizin.Yol() + "bos")) << "no folder without a file";
  EXPECT_THAT(s.Dosyalar("sorun"), testing::Contains("AK/sorunlar.txt"));

  const auto j = s(std::string("bordro --hepsi --bicim json") + Temmuz).Json();
  ASSERT_EQ(j.size(), 3u) << "one object of all companies";
  EXPECT_EQ(j["ZEYTİN"], s(std::string("bordro ZEYTİN --bicim json") + Temmuz).Json());
  EXPECT_EQ(s("bordro --hepsi --bicim json --yil 2008 --ay 7").cikti, "{}\n");
}

TEST(TopluKomut, WrongCallsAreRefusedOnce) {
  const Sirketler s;
  for (const char* yanlis :
       {"hazirla --hepsi AK --yil 2009 --ay 7", "hazirla --yil 2009 --ay 7", "hazirla --hepsi -j 0 --yil 2009 --ay 7",
        "hazirla --hepsi --giris @p.csv --sorunlar @yok --yil 2009 --ay 7", "denetle --hepsi --onar --kalan 3",
        "bordro --hepsi --bicim csv --yil 2009 --ay 7", "pusula AK KARA -o - --yil 2009 --ay 7",
        "bildirge --hepsi --bicim json --haric 1 -o @yok --yil 2009 --ay 7", "agi --hepsi --yil 2009 --ay 13"}) {
    const Cikti c = s(yanlis);
    EXPECT_EQ(c.durum, 2) << yanlis;
    EXPECT_THAT(c.mesaj, StartsWith("Yanlış kullanım: ")) << yanlis;
  }
  EXPECT_FALSE(fs::exists(s.dizin.Yol() + "yok"));
  EXPECT_FALSE(s.Hazir("AK"));
  EXPECT_EQ(s(std::string("pusula --hepsi -o @p.csv") + Temmuz).durum, 1) << "a file is no directory";
  for (const char* ad : {"AK", "KARA", "ZEYTİN"}) fs::remove_all(s.Veri(ad));
  EXPECT_THAT(s("denetle --hepsi").mesaj, HasSubstr("şirket yok"));
}

// The program over all three companies, one process at a time, while somebody holds the store of KARA: when AK has
// been told, it stands before KARA.
class Beklet {
 public:
  explicit Beklet(const Sirketler& s)
      : s_(s), tutan_([this] {
          const auto motor = MotorAc(s_.Veri("KARA") + "/tolu.dat");
          Islem islem(*motor);
          tutuldu_.Ac();
          ::pause();
          return 0;
        }) {
    tutuldu_.Bekle();
    no_ = ::fork();
    if (no_ == 0) Baslat();
    Bekle([&] { return s_.Oku("cikti").starts_with("AK: "); });
  }
  ~Beklet() {
    if (no_ > 0) {
      ::kill(no_, SIGKILL);
      ::waitpid(no_, nullptr, 0);
    }
  }

  void Birak() { tutan_.Oldur(); }
  void Sinyal(int sinyal) const { ::kill(no_, sinyal); }
  void CocuguOldur() const {
    const std::string no = std::to_string(no_);
    std::ifstream dosya("/proc/" + no + "/task/" + no + "/children");
    pid_t cocuk = 0;
    ASSERT_TRUE(dosya >> cocuk);
    ::kill(cocuk, SIGKILL);
  }
  void Soylenmesini(const char* soz) const {
    Bekle([&] { return s_.Oku("mesaj").find(soz) != std::string::npos; });
  }
  int Durum() {
    int durum = 0;
    ::waitpid(std::exchange(no_, 0), &durum, 0);
    return durum;
  }

 private:
  [[noreturn]] void Baslat() const {
    const auto ac = [&](const char* ad) {
      return ::open((s_.dizin.Yol() + ad).c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
    };
    ::dup2(ac("cikti"), STDOUT_FILENO);
    ::dup2(ac("mesaj"), STDERR_FILENO);
    ::execl(BELVANI_CLI, BELVANI_CLI, "--veri", s_.Veri("").c_str(), "hazirla", "--hepsi", "-j", "1", "--yil", "2009",
            "--ay", "7", nullptr);
    ::_exit(127);
  }
  static void Bekle(const std::function<bool()>& oldu) {
    using namespace std::chrono_literals;
    for (int i = 0; i < 1000 && !oldu(); ++i) std::this_thread::sleep_for(10ms);
    EXPECT_TRUE(oldu());
  }

  const Sirketler& s_;
  Kapi tutuldu_;
  Surec tutan_;
  pid_t no_ = 0;
};

TEST(TopluKomut, AProcessThatDiesCostsItsCompanyAlone) {
  const Sirketler s;
  Beklet program(s);
  program.CocuguOldur();
  const int durum = program.Durum();
  ASSERT_TRUE(WIFEXITED(durum));
  EXPECT_EQ(WEXITSTATUS(durum), 1);
  EXPECT_THAT(s.Oku("cikti"), AllOf(HasSubstr("AK: Bordro"), HasSubstr("ZEYTİN: Bordro"))) << "by the one after it";
  EXPECT_THAT(s.Oku("mesaj"), HasSubstr("KARA: Bu şirkette çalışan süreç sonlandı (sinyal 9)"));
  EXPECT_EQ(SonSatir(s.Oku("mesaj")), "3 şirket: 2 yapıldı, 0 atlandı, 1 yapılamadı\n");
  program.Birak();
  EXPECT_FALSE(s.Hazir("KARA"));
}

TEST(TopluKomut, AnInterruptFinishesWhatWasBegun) {
  const Sirketler s;
  Beklet program(s);
  program.Sinyal(SIGINT);
  program.Soylenmesini("Durduruluyor");
  program.Birak();
  const int durum = program.Durum();
  ASSERT_TRUE(WIFSIGNALED(durum));
  EXPECT_EQ(WTERMSIG(durum), SIGINT);
  EXPECT_THAT(s.Oku("mesaj"), HasSubstr("Başlanmayanlar:\n  ZEYTİN\n"));
  EXPECT_EQ(SonSatir(s.Oku("mesaj")), "3 şirket: 2 yapıldı, 0 atlandı, 0 yapılamadı, 1 başlanmadı\n");
  EXPECT_TRUE(s.Hazir("KARA"));
  EXPECT_FALSE(s.Hazir("ZEYTİN"));
}

TEST(TopluKomut, ASecondInterruptEndsAtOnce) {
  const Sirketler s;
  Beklet program(s);
  program.Sinyal(SIGINT);
  program.Soylenmesini("Durduruluyor");
  program.Sinyal(SIGINT);
  EXPECT_TRUE(WIFSIGNALED(program.Durum()));
  EXPECT_EQ(SonSatir(s.Oku("mesaj")), "3 şirket: 1 yapıldı, 0 atlandı, 1 yapılamadı, 1 başlanmadı\n");
  program.Birak();
  EXPECT_FALSE(s.Hazir("KARA"));
  EXPECT_THAT(s.Tamam("denetle KARA"), HasSubstr("sağlam"));
}

}  // namespace
}  // namespace belvani
