// kidem and kidem-icmal as they are called.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/calistir.h"

namespace belvani::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

struct KidemKurulumu : CliKomutu {
  KidemKurulumu() {
    (*this)("sirket-ac deneme --kullanici a --sifre - --yil 2009 --ay 8", "a\n");
    (*this)("parametre-kur --donem 2009-07");
    Yaz("f.csv", "issaati,paraonda,ondeger\n7.5,2,Personel\n");
    Yaz("k.csv", "grup,y10\nPersonel,12\n");
    Yaz("p.csv", "kod,adi,soyadi,ucret,girtar\n001,Işıl,Öğütçü,1800,02.08.2008\n002,Can,Tan,0,01.01.2009\n");
    for (const char* komut :
         {"tanim-al deneme firma @f.csv", "tanim-al deneme kaztan @k.csv", "personel-al deneme @p.csv"})
      EXPECT_EQ((*this)(komut).durum, 0) << komut;
  }
};

TEST(Kidem, OnePersonAsJson) {
  const KidemKurulumu k;
  const auto c = k("kidem deneme 001 --cikis 01.08.2009 --bicim json");
  ASSERT_EQ(c.durum, 0) << c.mesaj;
  const auto j = c.Json();
  EXPECT_EQ(j["AylikUcret"], "1800.00");
  EXPECT_EQ(j["CalismaGunu"], 360);
  EXPECT_EQ(j["IhbarGun"], 30);
  EXPECT_EQ(j["KidemYil"], 1.0);
  EXPECT_EQ(j["dvgvmatrah"], "0.00");
  EXPECT_EQ(j["kidemTavan"], "2365.16");
  EXPECT_EQ(j["gunlukEsas"], "60.00");
  EXPECT_EQ(j["gunlukKidem"], "5.00");
  EXPECT_EQ(j["netKidem"], "1789.20");
  EXPECT_EQ(j["ihbarGelirVergisi"], "270.00");
  EXPECT_EQ(j["netIhbar"], "1519.20");
  EXPECT_EQ(j["netToplam"], "3308.40");
  EXPECT_FALSE(j.contains("iz"));
  EXPECT_EQ(k.Oku("veri/DENEME/kidpar.dat"), std::string("\x68\x01\x09\x0a", 4));
  EXPECT_EQ(k.Oku("veri/DENEME/ihbsure.dat").size(), 32u);
}

TEST(Kidem, OptionsTakeThePlaceOfTheCard) {
  const KidemKurulumu k;
  const auto j = k("kidem deneme 001 --giris 02.08.2007 --cikis 2009-08-01 --ucret 5000 --ihbar-gun 10 --haric kidem "
                   "--bicim json --iz")
                     .Json();
  EXPECT_EQ(j["CalismaGunu"], 720);
  EXPECT_EQ(j["IhbarGun"], 10);
  EXPECT_EQ(j["gunlukEsas"], "78.84");
  EXPECT_EQ(j["brutIhbar"], "1666.67");
  EXPECT_TRUE(j["netKidem"].is_null());
  EXPECT_EQ(j["netToplam"], j["netIhbar"]);
  EXPECT_GT(j["iz"].size(), 5u);
  const auto iki = k("kidem deneme 001 --cikis 01.08.2009 --haric kidem --haric ihbar --bicim json").Json();
  EXPECT_EQ(iki["netToplam"], "0.00");
  const auto ucretsiz = k("kidem deneme 002 --cikis 30.06.2009 --bicim json").Json();
  EXPECT_TRUE(ucretsiz["netToplam"].is_null() && ucretsiz["kidemTavan"].is_null());
  EXPECT_EQ(ucretsiz["AylikUcret"], "0.00");
  EXPECT_EQ(k("kidem deneme 001 --cikis 30.06.2009 --ucret 9000 --tavan yariyil --bicim json").Json()["kidemTavan"],
            "2260.05");
}

TEST(Kidem, EveryFormAndEveryFault) {
  const KidemKurulumu k;
  const auto metin = k("kidem deneme 001 --cikis 30.06.2009 --iz");
  EXPECT_THAT(metin.cikti, HasSubstr("\nNET ÖDENECEK              :"));
  EXPECT_THAT(metin.cikti, HasSubstr("Neden bu tutar?"));
  EXPECT_THAT(metin.mesaj, HasSubstr("2009 yılının ilk yarısı için yayımlanan: 2,260.05"));
  EXPECT_EQ(k("kidem deneme 001 --cikis 01.08.2009 --bicim pdf -o @a.pdf").durum, 0);
  EXPECT_EQ(k("kidem deneme 001 --cikis 01.08.2009 --bicim xlsx -o @a.xlsx").durum, 0);
  EXPECT_EQ(k.Oku("a.pdf").substr(0, 4), "%PDF");
  EXPECT_EQ(k.Oku("a.xlsx").substr(0, 2), "PK");
  for (const auto& [degerler, durum] : {std::pair("kidem deneme 009 --cikis 01.08.2009", 1),
                                        {"kidem deneme 001", 2},
                                        {"kidem deneme 001 --cikis 31.06.2009", 2},
                                        {"kidem deneme 001 --cikis 01.08.2009 --ucret on", 2},
                                        {"kidem deneme 001 --cikis 01.08.2009 --bicim csv", 2},
                                        {"kidem deneme 001 --cikis 01.08.2009 --haric ikisi", 2},
                                        {"kidem deneme 001 --cikis 01.08.2009 --ihbar-gun -1", 2}})
    EXPECT_EQ(k(degerler).durum, durum) << degerler;
  k.Yaz("veri/DENEME/kidpar.dat", "bozuk");
  EXPECT_THAT(k("kidem deneme 001 --cikis 01.08.2009").mesaj, HasSubstr("kidpar.dat 5 bayt, 4 bayt olmalıydı"));
  EXPECT_EQ(k.Oku("veri/DENEME/kidpar.dat").size(), 4u);
}

TEST(KidemIcmal, GivesItsFormsAndIsNotPrinted) {
  const KidemKurulumu k;
  const auto j = k("kidem-icmal deneme --baz 2009-08-01 --kod 001 001 --bicim json").Json();
  ASSERT_EQ(j["satirlar"].size(), 1u);
  EXPECT_EQ(j["satirlar"][0]["NET Kıdem"], "1789.20");
  EXPECT_EQ(j["toplam"]["TOPLAM NET."], "3308.40");
  const auto pdf = k("kidem-icmal deneme --baz 01.08.2009 --bicim pdf -o @i.pdf");
  EXPECT_EQ(pdf.durum, 1);
  EXPECT_THAT(pdf.mesaj, HasSubstr("Yazıcı Bölümü Kapatılmış"));
  EXPECT_FALSE(fs::exists(k.dizin.Yol() + "i.pdf"));
  EXPECT_EQ(k("kidem-icmal deneme --baz 01.08.2009 --bicim xlsx -o @i.xlsx").durum, 0);
  EXPECT_EQ(k("kidem-icmal deneme --baz 31.06.2009").durum, 2);
  EXPECT_THAT(k("kidem-icmal deneme --baz 01.08.2009 --bicim csv").cikti, HasSubstr("NET İhbar."));
}

}  // namespace
}  // namespace belvani::test
