// One command over several companies of a server, and what a role that only looks is told. On a server alone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "calistir.h"
#include "sunucu/sablon.h"
#include "veriyeri.h"

namespace belvani {
namespace {

using test::Cikti;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* TemmuzAyi = " --yil 2009 --ay 7";
const std::string UcSirket = "AK KARA ZEYTİN";

// Gone after the database in which it was granted anything.
struct BakanRol {
  BakanRol() { test::YoneticiSql(test::SunucuDizini(), "postgres", "create role " + ad + " login"); }
  ~BakanRol() { test::YoneticiSql(test::SunucuDizini(), "postgres", "drop role " + ad); }
  std::string ad = "bakan_" + std::to_string(::getpid());
};

// AK, KARA and ZEYTİN with a person each, BOŞ with nobody, and the law of July 2009.
struct SunucudakiSirketler {
  SunucudakiSirketler() {
    komut.veri = yer.Adres();
    komut.Yaz("p.csv", "kod;adi;soyadi;ucret;girtar;tcno;sskno\n001;Işıl;Çağlar;1000;01.01.2009;10000000146;34-1\n");
    for (const char* ad : {"AK", "BOŞ", "KARA", "ZEYTİN"})
      Tamam("sirket-ac " + std::string(ad) + " --kullanici a" + TemmuzAyi);
    Tamam("parametre-kur --donem 2009-07");
    for (const char* ad : {"AK", "KARA", "ZEYTİN"}) Tamam("personel-al " + std::string(ad) + " @p.csv");
  }
  Cikti Tamam(const std::string& degerler) const {
    Cikti c = komut(degerler);
    EXPECT_EQ(c.durum, 0) << degerler << ": " << c.mesaj;
    return c;
  }

  BakanRol rol;
  test::VeriYeri yer;
  test::CliKomutu komut;
};

struct SunucudaToplu : testing::Test {
  void SetUp() override {
    if (!test::SunucudaMi()) GTEST_SKIP() << "of a server alone";
  }
};

// Each process has a connection of its own, and none that was open before it was made.
TEST_F(SunucudaToplu, AllCompaniesArePreparedLookedAtAndPrinted) {
  const SunucudakiSirketler s;
  const Cikti hazirla = s.Tamam(std::string("hazirla --hepsi -j 3") + TemmuzAyi);
  EXPECT_THAT(hazirla.cikti, AllOf(StartsWith("AK: Bordro Hazırlık Tamamlandı: 1 kişi"), HasSubstr("\nKARA: Bordro"),
                                   HasSubstr("\nZEYTİN: Bordro")));
  EXPECT_THAT(hazirla.mesaj, AllOf(HasSubstr("BOŞ: Bu ayda çalışan personel yok"),
                                   HasSubstr("4 şirket: 3 yapıldı, 1 atlandı, 0 yapılamadı")));
  const Cikti denetle = s.Tamam("denetle --hepsi -j 3");
  for (const char* ad : {"AK", "BOŞ", "KARA", "ZEYTİN"})
    EXPECT_THAT(denetle.cikti, HasSubstr("Veritabanı sağlam: " + std::string(ad)));
  const auto bordro = s.Tamam("bordro " + UcSirket + " --bicim json" + TemmuzAyi).Json();
  for (const char* ad : {"AK", "KARA", "ZEYTİN"}) EXPECT_EQ(bordro.at(ad).size(), 1u) << ad;
}

TEST_F(SunucudaToplu, WhoOnlyLooksIsToldThatNothingIsSaved) {
  SunucudakiSirketler s;
  s.Tamam(std::string("hazirla AK") + TemmuzAyi);
  s.Tamam("yetki AK " + s.rol.ad + " --salt-oku");
  s.komut.veri.insert(s.komut.veri.find("//") + 2, s.rol.ad + "@");
  EXPECT_EQ(s.Tamam(std::string("bordro AK --bicim json") + TemmuzAyi).Json().size(), 1u);
  const Cikti ayni = s.komut(std::string("hazirla AK") + TemmuzAyi);
  EXPECT_EQ(ayni.durum, 1) << ayni.cikti;
  EXPECT_THAT(ayni.mesaj, HasSubstr("değişiklikler kaydedilemez"));
  const Cikti yeni = s.komut("sirket-ac YENİ --kullanici a");
  EXPECT_EQ(yeni.durum, 1) << yeni.cikti;
  EXPECT_THAT(yeni.mesaj, AllOf(HasSubstr("Şirket Sunucuda Yaratılamıyor"), HasSubstr("yetkiniz yok")));
}

}  // namespace
}  // namespace belvani
