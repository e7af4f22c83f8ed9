// Servers on which nothing may be done, told in words; connections that end under a store. On a server alone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <locale.h>

#include "core/ortam.h"
#include "core/store/ornekdepo.h"
#include "core/store/satirlar.h"
#include "core/veriyolu.h"
#include "sunucu/sablon.h"
#include "veriyeri.h"

namespace belvani {
namespace {

using testing::HasSubstr;

struct SunucuKusuru : testing::Test {
  void SetUp() override {
    if (!test::SunucudaMi()) GTEST_SKIP() << "of a server alone";
  }
  void Yonet(const std::string& sql) { test::YoneticiSql(test::SunucuDizini(), yer.Veritabani(), sql); }
  // What opening says.
  std::string Acilis(const std::string& veritabani) {
    Veritabani db;
    // Under a name of its own: a program looks at a server once.
    const std::string adres = "postgresql:///" + veritabani + "?host=" + test::SunucuDizini() + "&application_name=a" +
                              std::to_string(++acilis_);
    return db.DbAc(adres + "#DENEME/tolu.dat") ? "" : db.SonHata();
  }
  std::string Acilis() { return Acilis(yer.Veritabani()); }

  test::VeriYeri yer;

 private:
  int acilis_ = 0;
};

TEST_F(SunucuKusuru, ServersThatDoNotServeAreRefusedWithTheReason) {
  EXPECT_THAT(Acilis("olmayan"), HasSubstr("bu adda bir veritabanı yok"));
  EXPECT_THAT(Acilis("postgres"), HasSubstr("sunucu-kur"));
  EXPECT_THAT(Acilis(), HasSubstr("böyle bir şirket yok"));
  const std::string eskiHarf = yer.Veritabani() + "_latin";
  test::YoneticiSql(test::SunucuDizini(), "postgres",
                    "create database " + eskiHarf + " template template0 encoding 'LATIN5' locale 'C'");
  EXPECT_THAT(Acilis(eskiHarf), HasSubstr("UTF8 olmalı"));
  test::YoneticiSql(test::SunucuDizini(), "postgres", "drop database " + eskiHarf);
  Yonet("update belvani.kurulum set surum = 99");
  EXPECT_THAT(Acilis(), HasSubstr("daha yeni bir sürümüyle"));
  Yonet("update belvani.kurulum set surum = 1");
  Yonet("update pg_collation set collversion = '1.2' where collname = 'turkce'");
  EXPECT_THAT(Acilis(), HasSubstr("harf sırası kitaplığı değişmiş"));
}

// The library speaks the desktop's language; what it says is understood all the same.
TEST_F(SunucuKusuru, TheReasonIsUnderstoodInEveryLanguage) {
  const auto dil = test::OrtamKoy("LANGUAGE", "de");
  const std::string once = ::setlocale(LC_MESSAGES, nullptr);
  ASSERT_NE(::setlocale(LC_MESSAGES, "C.UTF-8"), nullptr);
  const std::string neden = VeriYolu("postgresql:///belvani?service=yokboyle").Erisim().KusurMetni();
  ::setlocale(LC_MESSAGES, once.c_str());
  EXPECT_THAT(neden, HasSubstr("tanımlı değil"));
}

// The letters of another alphabet: what a merge of lists would lose in silence.
TEST_F(SunucuKusuru, AServerThatSortsOtherwiseIsRefused) {
  Yonet(
      "alter collation belvani.turkce rename to eski; set role belvani_sahip; "
      "create collation belvani.turkce (provider = icu, locale = 'en-u-ks-level2', deterministic = false)");
  EXPECT_THAT(Acilis(), HasSubstr("başka sıralıyor"));
}

TEST_F(SunucuKusuru, AConnectionThatEndsIsMadeAnewAndAnOpenTransactionIsLostWhole) {
  test::OrnekDepo d;
  Motor& motor = d.db.IcMotor();
  Sicil s;
  s.kod = "A";
  KayitYazici<Sicil>(motor).Ekle(s);
  const auto kes = [&] {
    test::YoneticiSql(test::SunucuDizini(), "postgres",
                      "select pg_terminate_backend(pid) from pg_stat_activity where datname = '" +
                          d.veriYeri.Veritabani() + "' and pid <> pg_backend_pid()");
  };
  const auto sayi = [&] { return KayitlariOku<Sicil>(motor).size(); };
  kes();
  EXPECT_EQ(sayi(), 1u) << "a connection nobody was using";
  s.kod = "B";
  {
    Islem islem(motor);
    KayitYazici<Sicil>(motor).Ekle(s);
    EXPECT_EQ(sayi(), 2u);
    kes();
    try {
      (void)sayi();
      ADD_FAILURE() << "the transaction went on";
    } catch (const MotorHatasi& h) {
      EXPECT_EQ(h.tur, MotorKusuru::Koptu);
      EXPECT_THAT(h.what(), HasSubstr("yazdıklarınız duruyor"));
    }
  }
  EXPECT_EQ(sayi(), 1u) << "nothing of it happened";
  KayitYazici<Sicil>(motor).Ekle(s);
  EXPECT_EQ(sayi(), 2u);
}

TEST_F(SunucuKusuru, WhoWantsAStoreAloneMeetsThoseWhoHaveItOpen) {
  test::OrnekDepo d;
  EXPECT_THROW((void)MotorAc(d.yol, AcilisKipi::Tek), MotorHatasi);
  d.db.DbKapat();
  const auto tek = MotorAc(d.yol, AcilisKipi::Tek);
  EXPECT_THROW((void)MotorAc(d.yol), MotorHatasi);
}

// A text that the server cannot keep is refused as a value, and costs nothing else.
TEST_F(SunucuKusuru, TextsThatTheServerCannotKeepAreRefused) {
  test::OrnekDepo d;
  for (const std::string& metin : {std::string("a\0b", 3), std::string("\xC5")}) {
    Sicil s;
    s.kod = "A";
    s.adi = metin;
    EXPECT_THROW(KayitYazici<Sicil>(d.db.IcMotor()).Ekle(s), MotorHatasi);
  }
  EXPECT_TRUE(KayitlariOku<Sicil>(d.db.IcMotor()).empty());
}

}  // namespace
}  // namespace belvani
