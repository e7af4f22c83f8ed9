// Records brought in from files: what is written where, and that a fault writes nothing. The messages of each kind of
// fault are tried in tests/cli, as their user sees them.
#include "personnel/aktarim.h"

#include "sirket.h"

namespace belvani {
namespace {

struct Aktarim : test::SirketTesti {
  void Al(const char* csv) { EXPECT_TRUE(PersonelAktar(o, csv, AktarimKipi::Kaydet)->sorunlar.empty()) << csv; }
};

TEST_F(Aktarim, ANewPersonGetsHisIdentityToo) {
  Al("KOD,adi,girtar,ucret,tcno\n a1 ,Çiğdem,01.02.2009,\"1,250.5\",123\nB2,Işıl,01.02.2009,1,\n");
  const auto sicil = Hepsi<Sicil>();
  const auto kimlik = Hepsi<Kimlik>();
  ASSERT_EQ(sicil.size(), 2u);
  EXPECT_EQ(sicil[0].kod, "a1");
  EXPECT_EQ(sicil[0].ucret, Tutar(1250.5));
  EXPECT_EQ(sicil[0].girtar, Tarih(2009, 2, 1));
  ASSERT_EQ(kimlik.size(), 2u);
  EXPECT_EQ(kimlik[0].kod, "a1");
  EXPECT_EQ(kimlik[0].tcno, "123");
  EXPECT_EQ(kimlik[1].uyruk, "T.C.");
}

TEST_F(Aktarim, AKnownPersonChangesInTheColumnsOfTheFileAlone) {
  Al("kod,adi,girtar,ucret,baba\na1,Çiğdem,01.02.2009,100,Ali\n");
  Al("kod,ucret,ciktar\nA1,200,31.03.2009\n");
  const auto sicil = Hepsi<Sicil>();
  ASSERT_EQ(sicil.size(), 1u) << "codes ignore case";
  EXPECT_EQ(sicil[0].ucret, Tutar(200));
  EXPECT_EQ(sicil[0].adi, "Çiğdem");
  EXPECT_EQ(sicil[0].ciktar, Tarih(2009, 3, 31));
  EXPECT_EQ(Hepsi<Kimlik>()[0].baba, "Ali");
  Al("kod,ciktar\na1,\n");
  EXPECT_TRUE(Hepsi<Sicil>()[0].ciktar.Bos()) << "an empty date is no date";
}

TEST_F(Aktarim, OneFaultOrATrialWritesNothing) {
  const char* const hatali = "kod,girtar\n1,01.01.2009\n2,\n";
  const Kusurlar sorunlar = PersonelAktar(o, hatali, AktarimKipi::Kaydet)->sorunlar;
  ASSERT_EQ(sorunlar.size(), 1u);
  EXPECT_TRUE(sorunlar[0].alan == sicil::girtar && sorunlar[0].kod == "2" && sorunlar[0].satir == 3);
  EXPECT_TRUE(PersonelAktar(o, "kod,girtar\n1,01.01.2009\n", AktarimKipi::YalnizDene)->sorunlar.empty());
  EXPECT_FALSE(PersonelAktar(o, "", AktarimKipi::Kaydet));
  EXPECT_TRUE(Hepsi<Sicil>().empty());
  EXPECT_TRUE(Hepsi<Kimlik>().empty());
}

// Check digits are told and never in the way.
TEST_F(Aktarim, AWrongIdentityNumberIsTakenAndTold) {
  const auto sonuc =
      PersonelAktar(o, "kod,girtar,tcno\n1,01.01.2009,10000000146\n2,01.01.2009,10000000164\n", AktarimKipi::Kaydet);
  ASSERT_EQ(sonuc->uyarilar.size(), 1u);
  EXPECT_EQ(sonuc->uyarilar[0].metin, "TC Kimlik No Kontrol Basamakları Tutmuyor: 10000000164");
  EXPECT_TRUE(sonuc->uyarilar[0].alan == kimlik::tcno && sonuc->uyarilar[0].satir == 3);
  EXPECT_EQ(Hepsi<Kimlik>()[1].tcno, "10000000164");
}

TEST_F(Aktarim, TheFileIsTheWholeFamilyOfItsPeople) {
  Al("kod,girtar\n1,01.01.2009\n2,01.01.2009\n");
  ASSERT_TRUE(AileAktar(o, "kod,yakinlik,agiok\n1,1,1\n1,4,1\n2,1,0\n", AktarimKipi::Kaydet));
  ASSERT_TRUE(AileAktar(o, "kod,yakinlik,agiok\n1,5,1\n", AktarimKipi::Kaydet));
  std::vector<std::string> aile;
  for (const Esco& e : Hepsi<Esco>()) aile.push_back(e.kod + ":" + std::to_string(e.yakinlik));
  EXPECT_THAT(aile, testing::UnorderedElementsAre("1:5", "2:1"));
}

}  // namespace
}  // namespace belvani
