// What the check of a company ends with, and what it mends: doubled and damaged pay records, half an upgrade.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"
#include "core/store/motor.h"

namespace belvani {
namespace {

using test::Cikti;
using testing::AllOf;
using testing::HasSubstr;

// Two people and the payroll of July 2009.
struct DenetleKomutu : testing::Test, test::CliKomutu {
  DenetleKomutu() {
    Yaz("p.csv", "kod;adi;ucret;girtar;agi\n001;Işıl;1000;01.01.2009;1\n002;Gökçe;2500.50;01.01.2009;1\n");
    for (const char* komut : {"sirket-ac deneme --kullanici a --yil 2009 --ay 7", "parametre-kur --donem 2009-07",
                              "personel-al deneme @p.csv", "hazirla deneme --yil 2009 --ay 7"})
      EXPECT_EQ((*this)(komut).durum, 0) << komut;
  }
  void Sql(const std::string& komut) const { MotorAc(dizin.Yol() + "veri/DENEME/tolu.dat")->Calistir(komut); }
  // Output and message together, after the status.
  std::string Denetle(const std::string& ek = {}) const {
    const Cikti c = (*this)("denetle deneme" + ek);
    return std::to_string(c.durum) + "\n" + c.cikti + c.mesaj;
  }
};

TEST_F(DenetleKomutu, ShowsDoublesKeepsTheChosenOneAndFilesTheOther) {
  EXPECT_EQ(Denetle(), "0\nVeritabanı sağlam: DENEME\n");
  Sql("drop index brd_ay; create index brd_ay on brd (yil, ay, kod);"
      "create temp table x as select * from brd where kod = '001';"
      "update x set oto = null, brutkaz = 9990000, fm1 = 2; insert into brd select * from x");
  EXPECT_EQ(Denetle(),
            "1\nVeritabanı bozuk: DENEME\n"
            "Uyarı: brd: brd_ay indeksi tekil değil (önceki sürümden), aynı kayıt iki kez yazılabilir\n"
            "001: brd: aynı kayıt 2 kez var (yil, ay, kod, no)\n"
            "Uyarı: 001: brd: 1 kayıt özetsiz (önceki sürümden), bozulsa anlaşılmaz\n");
  EXPECT_EQ((*this)("bordro deneme --yil 2009 --ay 7").durum, 0) << "it works as before";
  EXPECT_THAT(Denetle(" --onar"),
              AllOf(HasSubstr("1\nOnarım yapıldı\n  özeti yazıldı: 1 kayıt\n"
                              "  birden çok kez var, kalacak olanı --kalan NO ile seçiniz: 001 2009/7\n"
                              "    1: fm1 0, brutkaz 1000.00\n    3: fm1 2, brutkaz 999.00\n"),
                    HasSubstr("aynı kayıt 2 kez var")));
  EXPECT_EQ((*this)("denetle deneme --kalan 1").durum, 2);
  EXPECT_THAT(Denetle(" --onar --kalan 2"), HasSubstr("seçilecek bir kaydı yok: 2"));
  EXPECT_EQ(Denetle(" --onar --kalan 1"),
            "0\nOnarım yapıldı\n  ayrıldı (brdayrilan): 001 2009/7, 3 numaralı kayıt\nVeritabanı sağlam: DENEME\n");
  EXPECT_EQ(Denetle(" --onar"), "0\nOnarım yapıldı\nVeritabanı sağlam: DENEME\n");
}

TEST_F(DenetleKomutu, DamageIsAFaultAndAnEarlierVersionIsNone) {
  Sql("update brd set gvtutar = gvtutar + 1 where kod = '002'");
  EXPECT_THAT(Denetle(), AllOf(HasSubstr("0\nVeritabanı sağlam: DENEME\nUyarı: 002: brd: 1 kayıt son özetinden sonra"),
                               testing::Not(HasSubstr("bozulmuş"))));
  Sql("drop trigger brdozet_degisti; update brd set gvtutar = gvtutar + 1 where kod = '001'");
  EXPECT_THAT(Denetle(), HasSubstr("1\nVeritabanı bozuk: DENEME\n001: brd: 2009/7 kaydı (1) bozulmuş"));
  EXPECT_EQ((*this)("bordro deneme --yil 2009 --ay 7").durum, 0) << "it never stands in the way of reading";
}

TEST_F(DenetleKomutu, AHalfUpgradeIsToldAndNothingIsSaved) {
  Sql("alter table sicil drop column agi");
  const auto adim = HasSubstr("2003.6' den 2003.7 ' ye Geçiş (sicil.agi yok)");
  const Cikti okunan = (*this)("bordro deneme --yil 2009 --ay 7");
  EXPECT_EQ(okunan.durum, 0);
  EXPECT_THAT(okunan.mesaj, adim);
  const Cikti yazilan = (*this)("hazirla deneme --yil 2009 --ay 8");
  EXPECT_EQ(yazilan.durum, 1);
  EXPECT_THAT(yazilan.mesaj, adim);
  EXPECT_THAT(Denetle(), AllOf(HasSubstr("sicil.agi: alan yok"), adim));
}

}  // namespace
}  // namespace belvani
