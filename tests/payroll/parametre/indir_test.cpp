// Downloads land whole or not at all; the four parameter files are replaced together or stay together.
#include "payroll/parametre/indir.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "gecici.h"
#include "payroll/parametre/dosyalar.h"
#include "sunucu.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using test::Yanit;
using testing::HasSubstr;

const std::map<std::string, std::size_t> boylar{{"yasal2", 1368}, {"gvtbl", 96}, {"agitbl", 28}, {"hestur", 4050}};

class Indir : public testing::Test {
 protected:
  void SetUp() override { setenv("BELVANI_VERI_DIZIN", test::KaynakYolu("data").c_str(), 1); }
  void TearDown() override { unsetenv("BELVANI_VERI_DIZIN"); }

  std::string Yol(const std::string& ad) const { return dizin_.Yol() + ad; }
  void Yaz(const std::string& ad, const std::string& icerik) const {
    std::ofstream(Yol(ad), std::ios::binary) << icerik;
  }
  std::string Oku(const std::string& ad) const { return DosyaOku(Yol(ad)).value_or("<none>"); }
  const std::string& Dizin() const { return dizin_.Yol(); }
  std::ptrdiff_t DosyaSayisi() const { return std::distance(fs::directory_iterator(Dizin()), {}); }

 private:
  test::GeciciDizin dizin_;
};

TEST_F(Indir, TheBytesOfAnAddressLandAsTheyAre) {
  const std::string icerik("baytlar\0\r\n\xff", 11);
  Yaz("kaynak %25 ü#?.txt", icerik);
  const test::Sunucu sunucu({{"/download/x.txt", Yanit(icerik)},
                             {"/bos", Yanit("")},
                             {"/git", Yanit("", "302 Found", "Location: /download/x.txt\r\n")}});
  const struct {
    std::string url, beklenen;
  } durumlar[] = {{sunucu.Kok() + "/download/x.txt", icerik},
                  {sunucu.Kok() + "/git", icerik},
                  {sunucu.Kok() + "/bos", ""},
                  {"file://" + Dizin() + "kaynak%20%2525%20%C3%BC%23%3F.txt", icerik},
                  {"FILE://localhost" + Dizin() + "kaynak%20%2525%20%C3%BC%23%3F.txt", icerik}};
  for (const auto& d : durumlar) {
    Yaz("hedef.dat", "eski");
    const auto durum = ParametreIndir(d.url, Yol("hedef.dat"));
    EXPECT_TRUE(durum) << durum.HataMetni();
    EXPECT_EQ(Oku("hedef.dat"), d.beklenen) << d.url;
  }
}

TEST_F(Indir, AFailureLeavesTheFile) {
  Yaz("gizli", "yerel dosya");
  ASSERT_EQ(::mkfifo(Yol("boru").c_str(), 0600), 0);
  const std::string yarim = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nyarım";
  const std::string uzun = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + std::string(5000, 'x');
  const test::Sunucu sunucu({{"/hata", Yanit("içerik", "500 Internal Server Error")},
                             {"/yarim", yarim},
                             {"/sessiz", ""},
                             {"/uzun", uzun},
                             {"/boyu-uzun", Yanit(std::string(5000, 'x'))},
                             {"/dosyaya", Yanit("", "302 Found", "Location: file://" + Yol("gizli") + "\r\n")},
                             {"/donup-dur", Yanit("", "302 Found", "Location: /donup-dur\r\n")}});
  const struct {
    std::string url;
    const char* neden;
  } durumlar[] = {
      {sunucu.Kok() + "/yok", "sunucu 404 yanıtını verdi"},
      {sunucu.Kok() + "/hata", "sunucu 500 yanıtını verdi"},
      {sunucu.Kok() + "/yarim", "aktarım yarıda kesildi"},
      {sunucu.Kok() + "/sessiz", "süre doldu"},
      {sunucu.Kok() + "/uzun", "dosya 4096 bayttan büyük"},
      {sunucu.Kok() + "/boyu-uzun", "dosya 4096 bayttan büyük"},
      {sunucu.Kok() + "/dosyaya", "Parametre Bulunamadı"},
      {sunucu.Kok() + "/donup-dur", "Parametre Bulunamadı"},
      {"http://127.0.0.1:1/x", "sunucuya bağlanılamadı"},
      {"file://" + Yol("yok"), "dosya okunamadı"},
      {"file://" + Dizin(), "dosya okunamadı"},
      {"file://" + Yol("boru"), "dosya okunamadı"},
      {"file:///dev/zero", "dosya okunamadı"},
      {"file://baskabilgisayar" + Yol("gizli"), "http:, https: ya da file:"},
      {"ftp://127.0.0.1/x", "http:, https: ya da file:"},
      {"dict://127.0.0.1/x", "http:, https: ya da file:"},
      {"127.0.0.1/x", "http:, https: ya da file:"},
      {Yol("gizli"), "http:, https: ya da file:"},
      {"http://", "http:, https: ya da file:"},
      {"", "http:, https: ya da file:"},
  };
  Yaz("hedef.dat", "eski");
  const IndirmeSiniri sinir{.baglanti = 200ms, .toplam = 300ms, .enCokBayt = 4096};
  for (const auto& d : durumlar) {
    const auto durum = ParametreIndir(d.url, Yol("hedef.dat"), sinir);
    ASSERT_FALSE(durum) << d.url;
    EXPECT_THAT(durum.HataMetni(), HasSubstr(d.neden)) << d.url;
    EXPECT_EQ(Oku("hedef.dat"), "eski") << d.url;
  }
  EXPECT_EQ(DosyaSayisi(), 3) << "no remains";
}

TEST_F(Indir, TheSettingNamesTheServer) {
  for (const char* ayar : {"http://sunucu.ornek/p", "http://sunucu.ornek/p/", "http://sunucu.ornek/p// "}) {
    ASSERT_TRUE(MakineAyariYaz("ParametreAdresi", ayar));
    EXPECT_EQ(*ParametreAdresi(2009, 7), "http://sunucu.ornek/p");
  }
  ASSERT_TRUE(MakineAyariYaz("ParametreAdresi", ""));
  EXPECT_THAT(*ParametreAdresi(2009, 7), testing::StartsWith("file:///"));
  EXPECT_THAT(ParametreAdresi(2012, 7).HataMetni(), HasSubstr("Temmuz 2012"));
}

TEST_F(Indir, ShippedFiguresInstallAndLoad) {
  const std::string eskiAyar = std::getenv("BELVANI_KULLANICI_DIZIN");
  setenv("BELVANI_KULLANICI_DIZIN", Yol("kullanıcı %20#?").c_str(), 1);
  const struct {
    int yil, ay;
    Lira lira;
  } durumlar[] = {{2009, 7, Lira::Yeni}, {2008, 10, Lira::Yeni}, {2003, 1, Lira::Eski}, {2003, 1, Lira::Yeni}};
  for (const auto& d : durumlar) {
    const auto adres = ParametreAdresi(d.yil, d.ay, d.lira);
    ASSERT_TRUE(adres) << adres.HataMetni();
    const auto kuruldu = ParametreKur(Dizin(), *adres);
    ASSERT_TRUE(kuruldu) << kuruldu.HataMetni();
    const YasalParametreler p = *MevzuatYukle(MevzuatDizini(), d.yil, d.ay, d.lira);
    const YasalParametreler okunan = YasalDosyalariYukle(Dizin(), {}).deger;
    EXPECT_EQ(okunan.oranlar, p.oranlar) << d.yil;
    EXPECT_EQ(okunan.gv, p.gv) << d.yil;
    EXPECT_EQ(okunan.agi.AgiEsi, p.agi.AgiEsi) << d.yil;
    EXPECT_EQ(okunan.hesapTurleri, p.hesapTurleri) << d.yil;
    // A server that offers the same directory gives the same files.
    ASSERT_TRUE(ParametreIndir(*adres + "/download/agitbl.txt", Yol("tek.dat")));
    EXPECT_EQ(Oku("tek.dat"), Oku("agitbl.dat"));
  }
  setenv("BELVANI_KULLANICI_DIZIN", eskiAyar.c_str(), 1);
}

TEST_F(Indir, AllFourFilesAreReplacedOrNone) {
  std::map<std::string, std::string> saglam;
  for (const auto& [ad, boy] : boylar) saglam["/download/" + ad + ".txt"] = Yanit(std::string(boy, 'y'));
  const struct {
    const char* ad;
    std::string yol, yanit;
    const char* neden;
  } durumlar[] = {{"all there", "/ek", "x", ""},
                  {"the last is absent", "/download/hestur.txt", Yanit("", "404 Not Found"), "404"},
                  {"the last is too short", "/download/hestur.txt", Yanit("kısa"), "4050 bayt olmalıydı"},
                  {"an error page", "/download/gvtbl.txt", Yanit("<html>"), "96 bayt olmalıydı"},
                  {"cut off", "/download/agitbl.txt", "HTTP/1.1 200 OK\r\nContent-Length: 28\r\n\r\nxx", "yarıda"}};
  for (const auto& d : durumlar) {
    auto yanitlar = saglam;
    yanitlar[d.yol] = d.yanit;
    const test::Sunucu sunucu(yanitlar);
    for (const auto& [ad, boy] : boylar) Yaz(ad + ".dat", "eski " + ad);
    const auto durum = ParametreKur(Dizin(), sunucu.Kok(), {.baglanti = 1s, .toplam = 2s});
    const bool tamam = *d.neden == '\0';
    EXPECT_EQ(bool(durum), tamam) << d.ad;
    EXPECT_THAT(durum ? std::string() : durum.HataMetni(), HasSubstr(d.neden)) << d.ad;
    for (const auto& [ad, boy] : boylar)
      EXPECT_EQ(Oku(ad + ".dat"), tamam ? std::string(boy, 'y') : "eski " + ad) << d.ad;
  }
  EXPECT_FALSE(ParametreKur(Dizin() + "yok", *ParametreAdresi(2009, 7)));
}

TEST_F(Indir, AWriteThatFailsMidwayPutsTheOldFilesBack) {
  const std::string adres = *ParametreAdresi(2009, 7);
  Yaz("yasal2.dat", "eski yasal2");
  Yaz("hestur.dat", "eski hestur");
  rlimit sinir{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &sinir), 0);
  const auto eskiIsleyici = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit dar{3000, sinir.rlim_max};  // all but the 4050 bytes of hestur.dat fit
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &dar), 0);
  const auto durum = ParametreKur(Dizin(), adres);
  ::setrlimit(RLIMIT_FSIZE, &sinir);
  std::signal(SIGXFSZ, eskiIsleyici);
  ASSERT_FALSE(durum);
  EXPECT_THAT(durum.HataMetni(), HasSubstr("hestur.dat"));
  EXPECT_EQ(Oku("yasal2.dat"), "eski yasal2");
  EXPECT_EQ(Oku("hestur.dat"), "eski hestur");
  EXPECT_EQ(DosyaSayisi(), 2) << "files that did not exist are gone again";
}

TEST_F(Indir, AnOldFileThatCannotBeKeptStopsTheInstallation) {
  const std::string adres = *ParametreAdresi(2009, 7);
  Yaz("yasal2.dat", "eski yasal2");
  fs::create_directory(Yol("agitbl.dat"));
  const auto durum = ParametreKur(Dizin(), adres);
  ASSERT_FALSE(durum);
  EXPECT_THAT(durum.HataMetni(), HasSubstr("Eski parametre dosyası okunamadı"));
  EXPECT_EQ(Oku("yasal2.dat"), "eski yasal2");
  EXPECT_EQ(DosyaSayisi(), 2);
}

}  // namespace
}  // namespace belvani
