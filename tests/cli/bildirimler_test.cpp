// Lists and notices for the authorities, by their commands.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"

namespace belvani {
namespace {

using test::CliKomutu;
using testing::HasSubstr;

struct BildirimSirketi : CliKomutu {
  BildirimSirketi() {
    EXPECT_EQ((*this)("sirket-ac deneme --kullanici a --yil 2009 --ay 7").durum, 0);
    EXPECT_EQ((*this)("parametre-kur --donem 2009-07").durum, 0);
    Yaz("kisiler.csv",
        "kod,adi,soyadi,girtar,ciktar,cikiskodu,sskno,baba\n001,Işıl,Öz,01.07.2009,,,34,Ali\n"
        "002,Can,Er,02.07.2009,31.07.2009,4,,Veli\n");
    EXPECT_EQ((*this)("personel-al deneme @kisiler.csv").durum, 0);
  }
};

TEST(BildirimKomutlari, ListsOfTheDaysByTheNamesOfTheirColumns) {
  const BildirimSirketi k;
  const std::string ay = " deneme --bas 01.07.2009 --bit 31.07.2009 --bicim json";
  const auto girenler = k("giris-listesi" + ay).Json();
  EXPECT_EQ(girenler["satirlar"].size(), 2u);
  EXPECT_EQ(girenler["satirlar"][0]["adsoy"], "Işıl Öz");
  const auto cikan = k("cikis-listesi" + ay).Json()["satirlar"];
  ASSERT_EQ(cikan.size(), 1u);
  EXPECT_EQ(cikan[0]["ciktar"], "31.07.2009");
  EXPECT_EQ(cikan[0]["cikneden"], "04") << "a code in two digits";
  const auto dizi = k("dizi-pusulasi" + ay).Json()["satirlar"];
  EXPECT_EQ(dizi, (nlohmann::json{{{"liste", 1}, {"sskno", ""}, {"adsoy", "Can Er"}},
                                  {{"liste", 2}, {"sskno", "34"}, {"adsoy", "Işıl Öz"}}}));
  for (const char* komut : {"giris-listesi", "cikis-listesi", "dizi-pusulasi"}) {
    const auto ters = k(std::string(komut) + " deneme --bas 31.07.2009 --bit 01.07.2009 --bicim json");
    EXPECT_EQ(ters.durum, 0);
    EXPECT_EQ(ters.mesaj, "") << "an empty list without a word";
    EXPECT_TRUE(ters.Json()["satirlar"].empty());
    EXPECT_EQ(k(std::string(komut) + " deneme --bit 01.07.2009").durum, 2);
  }
}

TEST(BildirimKomutlari, LeavingNotice) {
  const BildirimSirketi k;
  const auto calisan = k("iab deneme 001 --tarih 31.07.2009");
  EXPECT_EQ(calisan.durum, 0);
  EXPECT_THAT(calisan.mesaj, HasSubstr("İşçi Çıkış Tarihi Eksik"));
  EXPECT_EQ(calisan.Json()["duzenlemeTarihi"], "31.07.2009");
  EXPECT_EQ(calisan.Json()["sonNetUcret"], "0.00");
  const auto cikan = k("iab deneme 002");
  EXPECT_EQ(cikan.mesaj, "");
  EXPECT_EQ(cikan.Json()["ciktar"], "31.07.2009");
  EXPECT_TRUE(k("iab deneme 002 --bicim pdf -o -").cikti.starts_with("%PDF"));
  const auto metin = k("iab deneme 002 --bicim metin");
  EXPECT_EQ(metin.durum, 1);
  EXPECT_THAT(metin.mesaj, HasSubstr("Bu Form Sadece Grafik Yazıcıdan Alınır."));
  EXPECT_THAT(k("iab deneme 999").mesaj, HasSubstr("999: bu kodda personel yok"));
  EXPECT_EQ(k("iab deneme 002 --tarih 31.02.2009").durum, 2);
}

}  // namespace
}  // namespace belvani
