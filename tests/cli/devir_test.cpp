// Carrying a company on, past months and accounts on the command line: what is told, and where nothing is changed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"

namespace belvani {
namespace {

using test::Cikti;
using testing::HasSubstr;

struct DevirKomutlari : testing::Test, test::CliKomutu {
  DevirKomutlari() {
    Yaz("p.csv", "kod;adi;ucret;girtar;agi\n001;Işıl;1000;01.01.2008;1\n002;Gökçe;2500.50;01.01.2008;1\n");
    for (const char* komut : {"sirket-ac deneme --kullanici a --yil 2008 --ay 12", "parametre-kur --donem 2008-12",
                              "personel-al deneme @p.csv", "hazirla deneme --yil 2008 --ay 12"})
      EXPECT_EQ((*this)(komut).durum, 0) << komut;
  }
};

TEST_F(DevirKomutlari, TheCompanyGoesOnByAMonthWhenItIsTold) {
  const Cikti sorulan = (*this)("devir deneme");
  EXPECT_EQ(sorulan.durum, 1);
  EXPECT_THAT(sorulan.mesaj, HasSubstr("Ocak 2009 dönemine geçmek için --evet veriniz"));
  EXPECT_THAT((*this)("sirketler").cikti, HasSubstr("12-2008"));
  EXPECT_EQ((*this)("devir deneme --evet").cikti, "Şirket dönemi: Ocak 2009\n");
  EXPECT_THAT((*this)("sirketler").cikti, HasSubstr("01-2009"));
}

TEST_F(DevirKomutlari, AYearIsCarriedOver) {
  EXPECT_EQ((*this)("yillik-devir deneme --yil 2008").cikti, "Kontrol Tamamlandı.. 2008: 2 kişi\n");
  EXPECT_EQ((*this)("yillik-devir deneme --yil 2007").cikti, "Kontrol Tamamlandı.. 2007: 0 kişi\n");
  const Cikti hatali = (*this)("yillik-devir deneme --yil 2002");
  EXPECT_EQ(hatali.durum, 1);
  EXPECT_EQ(hatali.mesaj, "Hatalı Dönem Seçilmiş..\n");
  Yaz("d.csv", "kod;yil;ogitutar\n001;2008;1\n003;2008;1\n");
  const Cikti olmayan = (*this)("perdev-al deneme @d.csv");
  EXPECT_EQ(olmayan.durum, 1);
  EXPECT_THAT(olmayan.mesaj, HasSubstr("satır 3, kod: bu kodla personel yok: 003"));
}

// Taken over in the middle of a year: the months before count in the first payroll here.
TEST_F(DevirKomutlari, PastMonthsCountInTheNextPayroll) {
  Yaz("k.csv", "kod;yil;ay;ng;brutkaz;sskmatrah;sskkesinti;gvmatrah;gvtutar\n001;2008;11;30;9000;3000;420;8000;1200\n");
  EXPECT_EQ((*this)("kart-al deneme @k.csv").cikti, "1 kayıt eklendi, 0 kayıt değişti\n");
  EXPECT_EQ((*this)("bordro-sil deneme --yil 2008 --ay 12").durum, 0);
  EXPECT_EQ((*this)("hazirla deneme --yil 2008 --ay 12").durum, 0);
  const auto kayitlar = (*this)("bordro deneme --yil 2008 --ay 12 --bicim json").Json();
  EXPECT_EQ(kayitlar.at(0).at("devgvmatrah"), "8000.00");
  EXPECT_EQ(kayitlar.at(1).at("devgvmatrah"), "0.00");
  EXPECT_EQ((*this)("denetle deneme").durum, 0);
}

TEST_F(DevirKomutlari, AnAccountIsListedWithItsBalances) {
  Yaz("c.csv", "kod;tarih;islem;ack;tutar\n001;15.12.2008;a;;30\n001;01.12.2008;B;Avans;100\n");
  EXPECT_EQ((*this)("cari-al deneme @c.csv").durum, 0);
  const auto json = (*this)("cari deneme 001 --bicim json").Json();
  EXPECT_EQ(json.at("baslik"), "Personel Cari - 001 Işıl");
  EXPECT_EQ(
      json.at("satirlar").at(1),
      nlohmann::json({{"tarih", "15.12.2008"}, {"islem", "A"}, {"ack", ""}, {"tutar", "30.00"}, {"bak", "70.00"}}));
  EXPECT_EQ((*this)("cari deneme 009").mesaj, "Bu Kodda Personel Yok: 009\n");
}

}  // namespace
}  // namespace belvani
