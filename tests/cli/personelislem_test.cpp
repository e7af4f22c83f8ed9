// Codes, laws and companies of people, by command.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"

namespace belvani {
namespace {

using test::Cikti;
using testing::HasSubstr;

struct PersonelIslem : testing::Test {
  test::CliKomutu komut;

  void SetUp() override {
    for (const char* kod : {"BIR", "IKI"})
      ASSERT_EQ(komut(std::string("sirket-ac ") + kod + " --kullanici a --yil 2009 --ay 7").durum, 0);
    komut.Yaz("kisi.csv", "kod,adi,soyadi,girtar,kanun\n001,Ali,Öz,01.01.2005,05084\n002,Işıl,Çağ,02.02.2006,\n");
    komut.Yaz("aile.csv", "kod,adi,yakinlik\n001,Ayşe,1\n");
    ASSERT_EQ(komut("personel-al BIR @kisi.csv").durum, 0);
    ASSERT_EQ(komut("aile-al BIR @aile.csv").durum, 0);
  }
};

TEST_F(PersonelIslem, ACodeIsChanged) {
  const Cikti degisti = komut("kod-degistir BIR 001 101");
  EXPECT_EQ(degisti.cikti, "Değiştirme İşlemi Tamamlandı\nEski kodda kalan kayıtlar: eş ve çocuk 1\n");
  EXPECT_EQ(degisti.durum, 0);
  const Cikti olmaz = komut("kod-degistir BIR 101 002");
  EXPECT_EQ(olmaz.durum, 1);
  EXPECT_EQ(olmaz.mesaj, "Seçtiğiniz Kodda Zaten Bir Kişi var\nYeni Bir Kod Seçiniz\n");
  EXPECT_EQ(komut("kod-degistir BIR 101 001").durum, 1) << "the family is still there";
  komut.Yaz("aile.csv", "kod,adi,yakinlik\n101,Ayşe,1\n");
  ASSERT_EQ(komut("aile-al BIR @aile.csv").durum, 0);
  EXPECT_EQ(komut("kod-degistir BIR 101 102 --bagli").cikti, "Değiştirme İşlemi Tamamlandı\n");
}

TEST_F(PersonelIslem, LawsAndWagesAreChanged) {
  EXPECT_EQ(komut("kanun-degistir BIR 5510 --eski 0").cikti, "Değiştirme Tamamlandı: 1 kişi, 05510\n");
  EXPECT_EQ(komut("kanun-degistir BIR 5921").cikti, "Değiştirme Tamamlandı: 2 kişi, 05921\n");
  EXPECT_EQ(komut("kanun-degistir BIR beş").mesaj, "Kanun No Hatalı\n");

  komut.Yaz("ucret.csv", "kod,ucret\n001,1500\n003,5\n");
  const Cikti olmaz = komut("ucret-al BIR @ucret.csv");
  EXPECT_EQ(olmaz.durum, 1);
  EXPECT_THAT(olmaz.mesaj, HasSubstr("satır 3"));
  komut.Yaz("ucret.csv", "kod,ucret\n001,1500\n");
  EXPECT_EQ(komut("ucret-al BIR @ucret.csv --dene").cikti, "0 kayıt eklendi, 1 kayıt değişti (deneme, kaydedilmedi)\n");
  EXPECT_EQ(komut("ucret-al BIR @ucret.csv").cikti, "0 kayıt eklendi, 1 kayıt değişti\n");
}

TEST_F(PersonelIslem, APersonGoesToAnotherCompany) {
  EXPECT_EQ(komut("transfer BIR 001 IKI 77").durum, 2) << "the day of hiring is wanted";
  EXPECT_EQ(komut("transfer BIR 001 IKI 77 --giris 31.02.2009").durum, 2);
  EXPECT_EQ(komut("transfer BIR 001 IKI 77 --giris 01.07.2009 --sebep Nakil").durum, 2);
  EXPECT_EQ(komut("transfer BIR 001 IKI 77 --giris 01.07.2009 --cikis 30.06.2009").mesaj, "Çıkış Kodu Seçilmemiş..\n");
  EXPECT_EQ(komut("transfer BIR 001 BIR 77 --giris 01.07.2009").mesaj, "Transfer Şirketi ile Şirketiniz Aynı..\n");
  const Cikti oldu =
      komut("transfer BIR 001 IKI 77 --giris 01.07.2009 --cikis 30.06.2009 --cikis-kodu 16 --sebep Nakil");
  EXPECT_EQ(oldu.cikti, "Personel kopyalandı: IKI 77\n");
  EXPECT_EQ(komut("kod-degistir IKI 77 78").durum, 0) << "he is there";
  EXPECT_THAT(komut("transfer BIR 001 IKI 79 --giris 01.07.2009").mesaj, HasSubstr("daha önce işten çıkmış"));
}

}  // namespace
}  // namespace belvani
