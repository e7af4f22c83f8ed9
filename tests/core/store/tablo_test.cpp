// The gateway to a record, with two users on one store: what is kept of both, what is refused, and in which words.
#include "core/store/tablo.h"

#include <gmock/gmock.h>

#include "core/store/engel.h"
#include "core/store/ornekdepo.h"

namespace belvani {
namespace {

using test::OrnekDepo;

Sicil Kart(const std::string& kod, const std::string& adi = "Ali") {
  Sicil s;
  s.kod = kod;
  s.adi = adi;
  s.girtar = Tarih(2005, 1, 1);
  return s;
}

std::string_view Buyuk(std::string_view, std::string_view alan) {
  return alan == "adi" ? "Adı" : alan == "ucret" ? "Ücreti" : alan;
}

// Two handles on one store, as two computers have them.
struct IkiMotor : testing::Test {
  OrnekDepo d;
  std::unique_ptr<Motor> obur = MotorAc(d.yol);
  Tablo<Sicil> benim{d.db.IcMotor(), Buyuk};
  Tablo<Sicil> onun{*obur};

  void SetUp() override { ASSERT_TRUE(benim.Yaz({.simdi = Kart("A1")})); }

  template <class Kayit>
  static Okunan<Kayit> Getir(Tablo<Kayit>& tablo, const Deger& anahtar) {
    const auto kayit = tablo.Bul(anahtar);
    return {.ilk = kayit, .simdi = kayit.value()};
  }
  // The other one gives the card these.
  void OnunYazdigi(const std::function<void(Sicil&)>& degistir) {
    auto k = Getir(onun, "A1");
    degistir(k.simdi);
    ASSERT_TRUE(onun.Yaz(k));
  }
};

TEST_F(IkiMotor, WhatTheyChangeInDifferentColumnsIsKeptOfBoth) {
  auto k = Getir(benim, "a1");
  OnunYazdigi([](Sicil& s) { s.verda = "Konak", s.sakatdrc = 2, s.adi = "Ayşe"; });
  k.simdi.ucret = Tutar(1200);
  k.simdi.adi = "Ayşe";  // both the same: no quarrel
  const auto yazilan = benim.Yaz(k);
  ASSERT_TRUE(yazilan);
  Sicil ikisi = Kart("A1", "Ayşe");
  ikisi.verda = "Konak";
  ikisi.sakatdrc = 2;
  ikisi.ucret = Tutar(1200);
  EXPECT_EQ(*yazilan, ikisi);
  EXPECT_EQ(onun.Bul("A1"), ikisi);
}

TEST_F(IkiMotor, WhereTheyMeetNothingIsWrittenUntilOneOfThemGivesWay) {
  for (const auto& [taraf, adi, ucret] :
       {std::tuple(Galip::Onunki, "Onun", Tutar(1)), std::tuple(Galip::Benimki, "Benim", Tutar(2))}) {
    auto k = Getir(benim, "A1");
    OnunYazdigi([ucret = ucret](Sicil& s) { s.adi = "Onun", s.ucret = ucret, s.verda = "Konak"; });
    k.simdi.adi = "Benim";
    k.simdi.soyadi = "Öz";
    const auto engel = benim.Yaz(k);
    ASSERT_FALSE(engel);
    EXPECT_EQ(engel.KusurMetni(), "Kayıt bu arada başka bir kullanıcı tarafından değiştirilmiş: A1 (Adı)");
    const auto& cakisma = engel.Kusuru().cakisma.value();
    EXPECT_EQ(cakisma.tur, CakismaTuru::Degismis);
    EXPECT_EQ(cakisma.alanlar, std::vector<AlanTutamagi>{sicil::adi});
    EXPECT_EQ(onun.Bul("A1"), cakisma.onunki) << "not even the surname";

    Uzlastir(k, cakisma, taraf);
    ASSERT_TRUE(benim.Yaz(k));
    const auto son = onun.Bul("A1").value();
    EXPECT_EQ(son.adi + son.soyadi + son.verda, std::string(adi) + "ÖzKonak");
    EXPECT_EQ(son.ucret, ucret) << "his alone";
    OnunYazdigi([](Sicil& s) { s = Kart("A1"); });
  }
}

TEST_F(IkiMotor, ADeletedRecordAndATakenKeyAreRefused) {
  auto k = Getir(benim, "A1");
  k.simdi.adi = "Benim";
  EXPECT_TRUE(onun.Sil("a1"));
  EXPECT_FALSE(onun.Sil("a1"));
  const auto silinmis = benim.Yaz(k);
  ASSERT_FALSE(silinmis);
  EXPECT_EQ(silinmis.KusurMetni(), "Kayıt bu arada başka bir kullanıcı tarafından silinmiş: A1");
  EXPECT_FALSE(benim.Bul("A1"));

  ASSERT_TRUE(onun.Yaz({.simdi = Kart("a1", "Onun")}));
  Uzlastir(k, *silinmis.Kusuru().cakisma, Galip::Benimki);
  const auto eklenmis = benim.Yaz(k);
  ASSERT_FALSE(eklenmis);
  EXPECT_EQ(eklenmis.KusurMetni(), "Kayıt bu arada başka bir kullanıcı tarafından eklenmiş: A1 (Adı)");
  Uzlastir(k, *eklenmis.Kusuru().cakisma, Galip::Benimki);
  EXPECT_EQ(benim.Yaz(k)->adi, "Benim");
  EXPECT_EQ(benim.KayitSayisi(), 1u);
  EXPECT_EQ(onun.Bul("a1")->kod, "A1") << "the key as it was spelled last";
}

// The judgement is part of the transaction: the other one waits for its end and then sees what it has left.
TEST_F(IkiMotor, AWriteWithinATransactionIsJudgedThere) {
  auto k = Getir(onun, "A1");
  k.simdi.adi = "Onun";
  Islem islem(d.db.IcMotor());
  auto b = Getir(benim, "A1");
  b.simdi.adi = "Benim";
  ASSERT_TRUE(benim.Yaz(b));
  EXPECT_EQ(onun.Bul("A1")->adi, "Ali") << "not approved yet";
  islem.Onayla();
  EXPECT_FALSE(onun.Yaz(k));
  EXPECT_FALSE(d.db.IcMotor().IslemdeMi() || obur->IslemdeMi());
}

TEST_F(IkiMotor, RecordsWhoseColumnsFollowFromOneAnotherAreWholeOrNot) {
  Tablo<Brd> brd(d.db.IcMotor()), onunBrd(*obur);
  Brd yeni;
  yeni.kod = "A1";
  const auto yazilan = brd.Yaz({.simdi = yeni});
  ASSERT_TRUE(yazilan);
  EXPECT_EQ(yazilan->oto, 1) << "with its number";
  Okunan<Brd> k{.ilk = *yazilan, .simdi = *yazilan}, onunki = k;
  onunki.simdi.gvmatrah = Tutar(5);
  k.simdi.sskmatrah = Tutar(7);
  ASSERT_TRUE(onunBrd.Yaz(onunki));
  const auto engel = brd.Yaz(k);
  ASSERT_FALSE(engel);
  EXPECT_EQ(engel.Kusuru().cakisma->onunki.gvmatrah, Tutar(5));
  EXPECT_EQ(brd.Bul(std::int64_t(1))->sskmatrah, Tutar());
}

TEST_F(IkiMotor, ValuesThatDoNotFitAreFaultsAtTheirFields) {
  auto k = Getir(benim, "A1");
  k.simdi.adi = std::string(21, 'x');
  k.simdi.soyadi = std::string(21, 'x');
  const auto engel = benim.Yaz(k);
  ASSERT_FALSE(engel);
  EXPECT_EQ(engel.KusurMetni(), "Adı: en çok 20 harf olabilir\nsoyadi: en çok 20 harf olabilir");
  EXPECT_TRUE(engel.Kusuru().alan == AlanTutamagi(sicil::adi) && engel.Kusuru().derece == Derece::Bilgi);
  EXPECT_FALSE(engel.Kusuru().cakisma);

  d.db.IcMotor().Calistir("update sicil set soyadi = '" + std::string(30, 'x') + "'");
  k = Getir(benim, "A1");
  k.simdi.adi = std::string("A\nli\x01") + "Can";
  const auto yazilan = benim.Yaz(k);
  ASSERT_TRUE(yazilan) << "what was in the store already stands in nobody's way";
  EXPECT_EQ(yazilan->adi, "AliCan");
}

TEST(Tablo, AStoreWithoutAColumnReadsItEmptyAndPassesItOver) {
  OrnekDepo d;
  d.db.IcMotor().Calistir("alter table sicil drop column meslekkod; alter table sicil drop column agi");
  Tablo<Sicil> kartlar(d.db.IcMotor());
  Sicil s = Kart("1");
  s.meslekkod = "2411.01";
  s.agi = true;
  ASSERT_TRUE(kartlar.Yaz({.simdi = s}));
  Okunan<Sicil> k{.ilk = kartlar.Bul("1"), .simdi = s};
  EXPECT_EQ(k.ilk, Kart("1"));
  k.simdi.adi = "Işıl";
  ASSERT_TRUE(kartlar.Yaz(k));
  EXPECT_EQ(kartlar.Bul("1"), Kart("1", "Işıl"));
}

TEST(Tablo, TheOnlyRecordIsFoundWhateverItsKey) {
  OrnekDepo d;
  Tablo<Arac> araci(d.db.IcMotor());
  EXPECT_FALSE(araci.Bul());
  for (const char* kod : {"001", "007"}) {
    Okunan<Arac> k{.ilk = araci.Bul(), .simdi = {}};
    k.simdi.kod = kod;
    ASSERT_TRUE(araci.Yaz(k));
    EXPECT_EQ(araci.Bul()->kod, kod);
  }
  EXPECT_EQ(araci.KayitSayisi(), 1u);
}

TEST(Tablo, NeighboursInTurkishOrder) {
  OrnekDepo d;
  Tablo<Sicil> kartlar(d.db.IcMotor());
  for (const char* kod : {"d5", "ç1", "a1", "c3"}) ASSERT_TRUE(kartlar.Yaz({.simdi = Kart(kod)}));
  const std::tuple<Yon, const char*, const char*> hareketler[] = {
      {Yon::Ilk, "d5", "a1"},    {Yon::Sonraki, "A1", "c3"}, {Yon::Sonraki, "c9", "ç1"}, {Yon::Son, "", "d5"},
      {Yon::Onceki, "c9", "c3"}, {Yon::Onceki, "ç1", "c3"},  {Yon::Onceki, "a1", "-"},   {Yon::Sonraki, "d5", "-"},
  };
  for (const auto& [yon, kod, beklenen] : hareketler)
    EXPECT_EQ(kartlar.Komsu(kod, yon).value_or(Kart("-")).kod, beklenen) << kod;
}

TEST(Tablo, ARefusedEngineRaisesAndLeavesNoTransactionOpen) {
  OrnekDepo d;
  Tablo<Sicil> kartlar(d.db.IcMotor());
  test::Engelle(d.db.IcMotor(), "insert", "sicil");
  EXPECT_THROW((void)kartlar.Yaz({.simdi = Kart("1")}), MotorHatasi);
  EXPECT_FALSE(d.db.IcMotor().IslemdeMi());
}

}  // namespace
}  // namespace belvani
