// A company goes to another data path and comes back: on the server both kinds are on the road, else two directories.
#include "core/session/sirkettasi.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/session/ornekoturum.h"
#include "core/session/sirket.h"
#include "core/store/depoaktarimi.h"
#include "core/store/satirlar.h"
#include "core/tables/brd.h"
#include "core/tables/sicil.h"

namespace belvani {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct SirketTasima : test::OrnekOturum {
  std::string dizin = d.Yol() + "baska/";

  void Doldur() {
    Kur();
    Motor& motor = o.depo.db.IcMotor();
    Sicil s;
    for (const char* kod : {"A1", "ç2", "İ3"}) {
      s.kod = kod;
      s.adi = "Işıl Ğ";
      s.ucret = Tutar(1234.5678);
      s.girtar = Tarih(2005, 2, 28);
      KayitYazici<Sicil>(motor).Ekle(s);
      Brd bordro;
      bordro.kod = kod;
      bordro.yil = 2009;
      bordro.ay = 7;
      bordro.fm1 = Tek(0.1);
      KayitYazici<Brd>(motor).Ekle(bordro);
    }
    motor.Calistir("delete from brd where kod = 'A1'");
    ASSERT_TRUE(VeriYolu(o.FirmaDizini).Yaz("sablon.dat", std::string("\0\xFF şablon", 10)));
    SirketKapat(o);
    o.FirmaDizini.clear();
  }
  VeriYolu Veri() const { return VeriYolu(o.DataPath); }
};

TEST_F(SirketTasima, ThereAndBackNothingIsLost) {
  Doldur();
  ASSERT_TRUE(VeriYolu(dizin).Yarat());
  const auto kopya = SirketTasi(Veri(), dizin, {.kod = "deneme", .kaynakKalsin = true});
  ASSERT_TRUE(kopya) << kopya.KusurMetni();
  EXPECT_THAT(Sirketler(Veri()), ElementsAre("DENEME"));
  const std::string ikinci = d.Yol() + "ikinci/";
  ASSERT_TRUE(VeriYolu(ikinci).Yarat());
  ASSERT_TRUE(SirketTasi(dizin, ikinci, {.kod = "DENEME"}));
  EXPECT_THAT(Sirketler(dizin), IsEmpty()) << "moved, not copied";
  EXPECT_FALSE(SirketTasi(ikinci, Veri(), {.kod = "DENEME"})) << "there is one of this name";
  {
    const auto once = MotorAc(DepoAdresi(Veri().Alt("DENEME"))),
               sonra = MotorAc(DepoAdresi(VeriYolu(ikinci).Alt("DENEME")));
    EXPECT_EQ(DepoFarki(*once, *sonra), "");
    EXPECT_EQ(DepoFarki(*sonra, *once), "");
    // A number that was given to a record that is gone is not given again.
    Brd yeni;
    yeni.kod = "A1";
    EXPECT_GT(KayitYazici<Brd>(*sonra).Ekle(yeni), 3);
  }
  EXPECT_EQ(VeriYolu(ikinci).Alt("DENEME").Oku("sablon.dat"), Veri().Alt("DENEME").Oku("sablon.dat"));
  ASSERT_TRUE(SirketAc(o, "DENEME"));
}

TEST_F(SirketTasima, ACompanyInUseOrDamagedStaysWhereItIs) {
  Doldur();
  ASSERT_TRUE(VeriYolu(dizin).Yarat());
  {
    Oturum baskasi;
    baskasi.DataPath = o.DataPath;
    ASSERT_TRUE(SirketAc(baskasi, "DENEME"));
    IcerdeYaz(baskasi, "Ayşe");
    const auto olmadi = SirketTasi(Veri(), dizin, {.kod = "DENEME"});
    ASSERT_FALSE(olmadi);
    EXPECT_THAT(olmadi.KusurMetni(), HasSubstr("Ayşe"));
    SirketKapat(baskasi);
  }
  EXPECT_THAT(Sirketler(dizin), IsEmpty());
  EXPECT_THAT(Sirketler(Veri()), ElementsAre("DENEME"));
  EXPECT_FALSE(SirketTasi(Veri(), d.Yol() + "a\\b*/", {.kod = "YOK"}));
}

// A file's engine keeps what its column cannot hold; the server's columns do not, and say so.
TEST_F(SirketTasima, AValueOfAnotherTypeStopsTheMoveToAServer) {
  Doldur();
  ASSERT_TRUE(VeriYolu(dizin).Yarat());
  ASSERT_TRUE(SirketTasi(Veri(), dizin, {.kod = "DENEME"}));
  MotorAc(DepoAdresi(VeriYolu(dizin).Alt("DENEME")))->Calistir("update sicil set ucret = 'bin' where kod = 'A1'");
  const auto olmadi = SirketTasi(dizin, Veri(), {.kod = "DENEME"});
  if (!test::SunucudaMi()) {
    EXPECT_TRUE(olmadi);
    return;
  }
  ASSERT_FALSE(olmadi);
  EXPECT_THAT(olmadi.KusurMetni(), HasSubstr("sicil.ucret"));
  EXPECT_THAT(Sirketler(Veri()), IsEmpty());
  EXPECT_THAT(Veri().YarimAltlar(), IsEmpty());
  EXPECT_THAT(Sirketler(dizin), ElementsAre("DENEME"));
}

}  // namespace
}  // namespace belvani
