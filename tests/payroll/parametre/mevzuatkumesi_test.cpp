// The installed law as one set: replaced whole or not at all, told when it is another month's or the user's own.
#include "payroll/parametre/mevzuatkumesi.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "core/ayarlar.h"
#include "core/ortam.h"
#include "core/sinamalar.h"
#include "dizinli.h"
#include "payroll/parametre/kayitlar.h"
#include "sunucu.h"

namespace belvani {
namespace {

using namespace std::chrono_literals;
using test::OrtamKoy;
using test::Sinamalar;
using test::Yanit;
using testing::Contains;
using testing::HasSubstr;

class MevzuatKumesi : public test::Dizinli {
 protected:
  void Kur(MevzuatAyi ay, const MevzuatIstegi& istek = {}) {
    const auto kuruldu = MevzuatKur(Dizin(), ay, *ParametreAdresi(ay.yil, ay.ay), istek);
    ASSERT_TRUE(kuruldu) << kuruldu.KusurMetni();
    son = *kuruldu;
  }
  MevzuatGorusu Bak(MevzuatAyi ay) { return MevzuataBak(KuruluMevzuatOku(Dizin()), ay); }
  template <class Degis>
  void OranDegistir(Degis degis) {
    YasalOranlar oranlar = KuruluMevzuatOku(Dizin()).parametreler.oranlar;
    degis(oranlar);
    ASSERT_TRUE(YasalOranlarKaydet(Dizin(), oranlar));
  }
  MevzuatKurulumu son;

 private:
  test::Sonunda veri_ = OrtamKoy("BELVANI_VERI_DIZIN", test::KaynakYolu("data").c_str());
  test::Sonunda kullanici_ = OrtamKoy("BELVANI_KULLANICI_DIZIN", Yol("kullanıcı %20#?").c_str());
};

TEST_F(MevzuatKumesi, ShippedFiguresInstallAndLoad) {
  for (const auto& [yil, ay, lira] :
       Sinamalar<int, int, Lira>{{2009, 7, Lira::Yeni}, {2003, 1, Lira::Eski}, {2003, 1, Lira::Yeni}}) {
    const auto kuruldu = MevzuatKur(Dizin(), {yil, ay}, *ParametreAdresi(yil, ay, lira));
    ASSERT_TRUE(kuruldu) << kuruldu.KusurMetni();
    YasalParametreler okunan = YasalDosyalariYukle(Dizin(), {}).deger;
    EXPECT_EQ(okunan, *MevzuatYukle(MevzuatDizini(), yil, ay, lira)) << yil;
    EXPECT_EQ(Bak({yil, ay}).hal, MevzuatHali::Uygun);
  }
}

TEST_F(MevzuatKumesi, AllFourFilesAreReplacedOrNone) {
  const std::string adres = *ParametreAdresi(2009, 7);
  const auto gercek = [&](ParametreDosyasi dosya) { return ParametreDosyasiAl(dosya, adres)->baytlar; };
  std::string sayisiz = gercek(ParametreDosyasi::Yasal), ucretsiz = sayisiz;
  sayisiz.replace(0, 4, "\xff\xff\xff\x7f");  // no number
  ucretsiz.replace(1280, 8, std::string(8, '\x11'));
  for (const auto& [yol, yanit, neden] : Sinamalar<const char*, std::string, const char*>{
           {"/ek", "x", ""},
           {"/download/hestur.txt", Yanit("", "404 Not Found"), "404"},
           {"/download/hestur.txt", Yanit(std::string(4049, 'y')), "4049 bayt, 4050 bayt olmalıydı"},
           {"/download/agitbl.txt", "HTTP/1.1 200 OK\r\nContent-Length: 28\r\n\r\nxx", "yarıda"},
           {"/download/gvtbl.txt", Yanit(std::string(96, '\0')), "dilim yok"},
           {"/download/yasal2.txt", Yanit(sayisiz), "sayı değil"},
           {"/download/yasal2.txt", Yanit(ucretsiz), "Asgari ücret"},
           {"/download/agitbl.txt", Yanit(std::string(28, 'y')), "0 ile 100 arasında değil"}}) {
    std::map<std::string, std::string> yanitlar{{yol, yanit}};
    for (const auto dosya : ParametreDosyalari) {
      const std::string ad(ParametreDosyaAdi(dosya));
      yanitlar.emplace("/download/" + ad.substr(0, ad.size() - 3) + "txt", Yanit(gercek(dosya)));
      Yaz(ad, "eski");
    }
    const test::Sunucu sunucu(yanitlar);
    const auto durum = MevzuatKur(Dizin(), {2009, 7}, sunucu.Kok(), {.sinir = {.baglanti = 1s, .toplam = 2s}});
    const bool tamam = *neden == '\0';
    EXPECT_EQ(bool(durum), tamam) << yol;
    EXPECT_THAT(durum ? std::string() : durum.KusurMetni(), HasSubstr(neden));
    for (const auto dosya : ParametreDosyalari)
      EXPECT_EQ(Oku(std::string(ParametreDosyaAdi(dosya))), tamam ? gercek(dosya) : "eski") << yol;
  }
}

TEST_F(MevzuatKumesi, AWriteThatFailsLeavesTheOldFiles) {
  const std::string adres = *ParametreAdresi(2009, 7);
  Yaz("yasal2.dat", "eski yasal2");
  Yaz("hestur.dat", "eski hestur");
  const auto once = DosyaSayisi();
  {
    const auto geri = test::DarDisk(3000);  // all but the 4050 bytes of hestur.dat fit
    const auto durum = MevzuatKur(Dizin(), {2009, 7}, adres);
    ASSERT_FALSE(durum);
    EXPECT_THAT(durum.KusurMetni(), HasSubstr("hestur.dat"));
  }
  EXPECT_EQ(Oku("yasal2.dat") + Oku("hestur.dat"), "eski yasal2eski hestur");
  EXPECT_EQ(DosyaSayisi(), once) << "no remains";
  ASSERT_TRUE(DizinYarat(Yol("agitbl.dat")));
  EXPECT_THAT(MevzuatKur(Dizin(), {2009, 7}, adres).KusurMetni(), HasSubstr("bu adda bir dizin var"));
  EXPECT_EQ(Oku("yasal2.dat"), "eski yasal2");
}

// A writer killed at any moment, and readers meanwhile: January or July, never a mixture.
TEST_F(MevzuatKumesi, NoReaderSeesTwoMonths) {
  Kur({2009, 1});
  const std::string adresler[] = {*ParametreAdresi(2009, 1), *ParametreAdresi(2009, 7)};
  const YasalParametreler ocak = *MevzuatYukle(MevzuatDizini(), 2009, 1),
                          temmuz = *MevzuatYukle(MevzuatDizini(), 2009, 7);
  int temmuzlar = 0;
  constexpr int deneme = 40;
  for (int i = 0; i < deneme; ++i) {
    const pid_t yazan = ::fork();
    if (yazan == 0) {
      for (int kez = 1;; ++kez) (void)MevzuatKur(Dizin(), {2009, kez % 2 == 1 ? 7 : 1}, adresler[kez % 2]);
    }
    for (int bakis = 0; bakis < 5; ++bakis) {
      std::this_thread::sleep_for(std::chrono::microseconds(173 * (i + 1)));
      const YasalParametreler okunan = KuruluMevzuatOku(Dizin()).parametreler;
      ASSERT_TRUE(okunan == ocak || okunan == temmuz) << i;
      temmuzlar += okunan == temmuz ? 1 : 0;
    }
    ::kill(yazan, SIGKILL);
    ::waitpid(yazan, nullptr, 0);
    const YasalParametreler kalan = KuruluMevzuatOku(Dizin()).parametreler;
    ASSERT_TRUE(kalan == ocak || kalan == temmuz) << i;
  }
  EXPECT_GT(temmuzlar, 0);
  Kur({2009, 7});
  EXPECT_EQ(KuruluMevzuatOku(Dizin()).parametreler, temmuz);
  for (const auto& girdi : std::filesystem::directory_iterator(Dizin()))
    EXPECT_THAT(girdi.path().filename().string(), testing::Not(testing::StartsWith("."))) << "swept by the next writer";
}

TEST_F(MevzuatKumesi, AnotherMonthsLawIsNamed) {
  EXPECT_EQ(Bak({2009, 1}).hal, MevzuatHali::Kullanilamaz) << "nothing is installed";
  Kur({2009, 7});
  for (int ay = 7; ay <= 12; ++ay) EXPECT_EQ(Bak({2009, ay}).hal, MevzuatHali::Uygun) << ay;
  const auto ocak = Bak({2009, 1});
  EXPECT_EQ(ocak.hal, MevzuatHali::BaskaAy);
  EXPECT_THAT(ocak.baslik, HasSubstr("Ocak 2009 döneminin değil (Temmuz 2009)"));
  EXPECT_THAT(ocak.satirlar, Contains("Asgari Ücret: 693.00 (yayımlanan 666.00)"));
  EXPECT_EQ(Bak({2012, 1}).hal, MevzuatHali::Uygun) << "never published: the user's own";
  // A file alone from another month.
  Kur({2008, 1}, {.yalniz = ParametreDosyasi::Gv});
  EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::BaskaAy);
  EXPECT_THAT(Bak({2009, 7}).baslik, HasSubstr("(Ocak 2008)"));
  // An installation of before the note: looked up among the published months.
  std::filesystem::remove(Yol("mevzuat.json"));
  EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::BaskaAy);
  // Only the rates were fetched: no tax could be calculated.
  std::filesystem::remove(Yol("gvtbl.dat"));
  EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::Kullanilamaz);
  EXPECT_THAT(Bak({2009, 7}).Metin(), HasSubstr("gvtbl.dat"));
}

TEST_F(MevzuatKumesi, TheUsersOwnFiguresAreAskedOnceAndComeBackWithTheirMonth) {
  Kur({2009, 7});
  OranDegistir([](YasalOranlar& o) { o.MuafOran = Tek(5), o.IsciOran[2].has = Tek(3); });
  EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::Uygun) << "what was never published is nobody else's";
  OranDegistir([](YasalOranlar& o) { o.KidemTavan = Tutar(3000); });
  EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::Kullanici);
  EXPECT_THAT(Bak({2009, 7}).satirlar, testing::ElementsAre(HasSubstr("Kıdem T. Tavan: 3,000.00 (yayımlanan")));
  ASSERT_TRUE(MevzuatiKabulEt(Dizin(), {2009, 7}));
  EXPECT_EQ(Bak({2009, 12}).hal, MevzuatHali::Uygun) << "confirmed for all months with the same published figures";
  EXPECT_EQ(Bak({2009, 1}).hal, MevzuatHali::Kullanici);

  Kur({2009, 1});
  EXPECT_TRUE(son.sakladi);
  EXPECT_EQ(Bak({2009, 1}).hal, MevzuatHali::Uygun);
  EXPECT_TRUE(SaklananVar(Dizin(), {2009, 7}));
  Kur({2009, 7});
  EXPECT_TRUE(son.geriGeldi && !son.sakladi);
  EXPECT_EQ(KuruluMevzuatOku(Dizin()).parametreler.oranlar.KidemTavan, Tutar(3000));
  EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::Uygun) << "confirmed before";
  Kur({2009, 7}, {.saklanan = Saklanan::Birakilir});
  EXPECT_TRUE(KullanicininRakamlari(KuruluMevzuatOku(Dizin())).empty()) << "the published ones";
}

// A new installation fetches one file after the other: what stands for those that are not there yet is nobody's.
TEST_F(MevzuatKumesi, WhatStandsForAnAbsentFileIsNobodysFigure) {
  for (const auto dosya : ParametreDosyalari) {
    YasalDosyalariYukle(Dizin(), {});  // writes built-in ones, as the desktop does
    EXPECT_TRUE(KullanicininRakamlari(KuruluMevzuatOku(Dizin())).empty());
    if (dosya == ParametreDosyasi::HesapTur) break;
    if (dosya == ParametreDosyasi::Agi) {
      EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::BaskaAy);
    }
    Kur({2009, 7}, {.yalniz = dosya});
  }
  EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::Uygun);
}

TEST_F(MevzuatKumesi, WhatAServerGaveForAMonthIsThatMonths) {
  const std::string adres = *ParametreAdresi(2009, 7);
  std::map<std::string, std::string> yanitlar;
  for (const auto dosya : ParametreDosyalari) {
    AdliDosya d = *ParametreDosyasiAl(dosya, adres);
    if (dosya == ParametreDosyasi::Yasal) {
      auto oranlar = KayitCoz<YasalKaydi>(d.baytlar).deger;
      oranlar.KidemTavan = Tutar(2500);
      d.baytlar = KayitBaytlari<YasalKaydi>(oranlar);
    }
    yanitlar["/download/" + d.ad.substr(0, d.ad.size() - 3) + "txt"] = Yanit(d.baytlar);
  }
  const test::Sunucu sunucu(yanitlar);
  ASSERT_TRUE(MevzuatKur(Dizin(), {2009, 7}, sunucu.Kok()));
  EXPECT_EQ(Bak({2009, 7}).hal, MevzuatHali::Uygun);
  EXPECT_TRUE(KullanicininRakamlari(KuruluMevzuatOku(Dizin())).empty());
  EXPECT_EQ(Bak({2009, 1}).hal, MevzuatHali::BaskaAy);
}

}  // namespace
}  // namespace belvani
