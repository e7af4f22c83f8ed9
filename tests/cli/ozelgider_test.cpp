// The personal-expense refund from the table to the lists, as a batch does it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/calistir.h"

namespace belvani {
namespace {

using testing::HasSubstr;

TEST(OzelGiderKomutlari, FromTheDeclaredExpensesToTheLists) {
  const test::CliKomutu s;
  ASSERT_EQ(s("sirket-ac a --kullanici k --yil 2004 --ay 12").durum, 0);
  ASSERT_EQ(s("parametre-kur --donem 2005-01").durum, 0);
  s.Yaz("p.csv", "kod;adi;soyadi;girtar\n001;Işıl;Çağlar;01.01.2003\n002;Ömer;Ünal;01.01.2003\n");
  ASSERT_EQ(s("personel-al a @p.csv").durum, 0);
  s.Yaz("h.csv", "harcama;kod;gvmatrah\n3500,00;001;12000\n900;002;800\n");

  const auto bos = s("ogi-harcama a @h.csv --yil 2004");
  EXPECT_EQ(bos.durum, 1);
  EXPECT_THAT(bos.mesaj, HasSubstr("GV Tablosu boş"));
  EXPECT_THAT(s("ogi-kalan a --yil 2005").mesaj, HasSubstr("Listelenecek Kayıt Bulunamadı")) << "nothing was stored";
  EXPECT_THAT(s("parametre-kur --donem 2007-12 --ozel-gider").mesaj, HasSubstr("2007 yılı için"));
  ASSERT_EQ(s("parametre-kur --donem 2004-12 --ozel-gider").durum, 0);

  s.Yaz("bozuk.csv", "kod;harcama\n001;1\nyok;2\n");
  EXPECT_EQ(s("ogi-harcama a @bozuk.csv --yil 2004").durum, 1);
  s.Yaz("veri/A/ozgvpar.dat", "kısa");
  const auto alindi = s("ogi-harcama a @h.csv --yil 2004");
  EXPECT_EQ(alindi.durum, 0) << alindi.mesaj;
  EXPECT_EQ(alindi.cikti, "2 kayıt eklendi, 0 kayıt değişti\n");
  EXPECT_THAT(alindi.mesaj, HasSubstr("Uyarı: ozgvpar.dat 5 bayt, 12 bayt olmalıydı: hazır değerler yazıldı."));
  EXPECT_EQ(s.Oku("veri/A/ozgvpar.dat"), std::string("\0\0\x0c\x42\x01\0\xd5\x07\0\0\xc0\x40", 12)) << "35, 1/2005, 6";

  const auto bordro = s("ogi-bordro a --yil 2005 --ay 1 --tur calisan --urun bordro --bicim json").Json();
  EXPECT_EQ(bordro["baslik"], "Özel Gider İndirim Bordrosu (Çalışan)");
  EXPECT_EQ(bordro["satirlar"][0]["İade Tutar"], "270.00");
  EXPECT_EQ(bordro["satirlar"][1]["H.Esas Tutar"], "800.00");
  EXPECT_EQ(bordro["satirlar"][1]["Ocak"], "0.00");
  EXPECT_EQ(s("ogi-mahsup a --yil 2005 --bicim json").Json()["satirlar"][1]["Ocak"], nullptr);
  EXPECT_EQ(s("ogi-kalan a --yil 2005 --bicim json").Json()["toplam"]["topkalan"], "334.00");
  EXPECT_EQ(s("ogi-bordro a --yil 2005 --ay 1 --urun odeme --bicim json").Json()["satirlar"][0]["Net Ödenen"], "0.00");
  EXPECT_THAT(s("ogi-bordro a --yil 2005 --ay 1 --tur ayrilan").mesaj, HasSubstr("Listelenecek Kayıt Bulunamadı"));
  EXPECT_EQ(s("ogi-bordro a --yil 2005 --ay 1 --tur baska").durum, 2);
  EXPECT_THAT(s("ogi-mahsup a --yil 2009").mesaj,
              testing::AllOf(HasSubstr("Mahsup yılı 2005 olarak ayarlı"), HasSubstr("asgari geçim indirimidir")));
  for (const char* bicim : {"pdf", "xlsx", "ham"})
    EXPECT_EQ(s(std::string("ogi-bordro a --yil 2005 --ay 1 -o @liste --bicim ") + bicim).durum, 0) << bicim;
}

}  // namespace
}  // namespace belvani
