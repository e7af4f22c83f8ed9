// Backups on the command line: made, listed, brought back.
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"

namespace belvani {
namespace {

using test::CliKomutu;
using testing::HasSubstr;
using testing::MatchesRegex;

TEST(Yedek, MadeListedAndBroughtBack) {
  const CliKomutu k;
  const auto tamam = [&](const std::string& komut) {
    const auto c = k(komut);
    EXPECT_EQ(c.durum, 0) << komut << ": " << c.mesaj;
    return c.cikti;
  };
  const auto kisiEkle = [&](const std::string& kod) {
    k.Yaz("p.csv", "kod;adi;soyadi;ucret;girtar\n" + kod + ";Işıl;Çağlar;1000;01.01.2009\n");
    tamam("personel-al deneme @p.csv");
  };
  const auto bordro = [&](const std::string& kod) {
    tamam("hazirla " + kod + " --yil 2009 --ay 7");
    return tamam("bordro " + kod + " --yil 2009 --ay 7 --bicim json");
  };
  tamam("sirket-ac deneme --kullanici a --unvan 'Şık Örgü' --yil 2009 --ay 7");
  tamam("sirket-ac öteki --kullanici a");
  tamam("parametre-kur --donem 2009-07");
  kisiEkle("1");
  const std::string once = bordro("deneme");
  EXPECT_THAT(tamam("yedekle deneme"), MatchesRegex("Yedek alındı: .*veri/.yedek/DENEME/[-0-9]*elle.zip .*KB.\n"));
  const auto liste = k("yedekler Deneme --json").Json();
  ASSERT_EQ(liste.size(), 1u);
  const std::string yedek = liste[0]["dosya"];
  EXPECT_THAT(tamam("yedekler deneme"), HasSubstr("\telle\t"));

  kisiEkle("2");
  EXPECT_NE(bordro("deneme"), once);
  const auto sorulan = k("yedekten " + yedek);
  EXPECT_EQ(sorulan.durum, 1);
  EXPECT_THAT(sorulan.mesaj, HasSubstr("yerine yedekteki hali ("));
  EXPECT_THAT(tamam("yedekten " + yedek + " --kod kopya"), HasSubstr("Yedek geri yüklendi: KOPYA\n"));
  EXPECT_EQ(bordro("kopya"), once);
  EXPECT_THAT(tamam("yedekten " + yedek + " --onay"), HasSubstr("Önceki hali: "));
  EXPECT_EQ(bordro("deneme"), once);

  // One that cannot be backed up keeps no other from it.
  std::filesystem::create_directories(k.dizin.Yol() + "usb");
  std::filesystem::create_directories(k.dizin.Yol() + "veri/BOZUK");
  k.Yaz("veri/.yedek/BOZUK", "");
  const auto hepsi = k("yedekle --hepsi");
  EXPECT_EQ(hepsi.durum, 1);
  EXPECT_THAT(hepsi.mesaj, HasSubstr("Yedeği alınamayan şirketler:\nBOZUK: "));
  EXPECT_EQ(std::ranges::count(hepsi.cikti, '\n'), 3);
  std::filesystem::remove_all(k.dizin.Yol() + "veri/BOZUK");
  EXPECT_EQ(std::ranges::count(tamam("yedekle --hepsi -o @usb"), '\n'), 3);

  tamam("sirket-sil DENEME --onay");
  EXPECT_THAT(tamam("yedekler deneme"), HasSubstr("silmeden önce"));
  EXPECT_EQ(k("yedekten @p.csv").durum, 1);
  EXPECT_THAT(k("yedekten @p.csv").mesaj, HasSubstr("Dosya bir şirket yedeği değil"));
  EXPECT_EQ(k("yedekler hiç").mesaj, "Şirket Bulunamadı: HİÇ\n");
  EXPECT_EQ(k("yedekle").durum, 2);
}

}  // namespace
}  // namespace belvani
