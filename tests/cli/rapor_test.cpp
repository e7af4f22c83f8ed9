// Designed reports on the command line: by their names, out of a file, and what is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"

namespace belvani {
namespace {

using testing::HasSubstr;

TEST(RaporKomutu, GivesReportsByNameAndOutOfFiles) {
  test::CliKomutu k;
  ASSERT_EQ(k("sirket-ac d --kullanici a --yil 2009 --ay 7").durum, 0);
  ASSERT_EQ(k("parametre-kur --donem 2009-07").durum, 0);
  k.Yaz("p.csv",
        "kod;adi;soyadi;ucret;girtar;grup;tcno\n1;Işıl;Çağ;1000;01.01.2009;A;10000000146\n"
        "2;Ali;Ak;2000;01.01.2008;B;10000000146\n");
  ASSERT_EQ(k("personel-al d @p.csv").durum, 0);
  ASSERT_EQ(k("hazirla d --yil 2009 --ay 7").durum, 0);

  const auto girenler = k("rapor d 'dönemde girenler' --bicim json").Json();
  EXPECT_EQ(girenler["baslik"], "Dönemde Girenler");
  ASSERT_EQ(girenler["satirlar"].size(), 1u);
  EXPECT_EQ(girenler["satirlar"][0]["Adı"], "Işıl");
  EXPECT_EQ(k("rapor d 'Dönemde Girenler' --yil 2008 2009 --grup B B --bicim json").Json()["satirlar"].size(), 1u);

  const auto ucret = k("rapor d 'Ücret Kartı.brp' --bicim json").Json();
  EXPECT_EQ(ucret["satirlar"].size(), 2u);
  EXPECT_EQ(ucret["toplam"]["Brüt Kazanç"], "3000.00");
  EXPECT_THAT(k("rapor d 'Ücret Kartı' --yil 2001 2001").mesaj, HasSubstr("Rapora giren kayıt yok"));

  k.Yaz("x.orp", std::string(4149, ' '));
  EXPECT_THAT(k("rapor d @x.orp").mesaj, HasSubstr("Bu Bir Rapor Dosyası Değil veya Bozuk"));
  EXPECT_EQ(k("rapor d yok").mesaj, "Rapor bulunamadı: yok\n");
  EXPECT_EQ(k("rapor d 'Ücret Kartı' --ay 0 13").durum, 2);
}

}  // namespace
}  // namespace belvani
