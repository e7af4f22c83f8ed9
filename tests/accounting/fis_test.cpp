// The voucher: what a group's sums become, and what is left out of it.
#include "muhasebe.h"

namespace belvani {
namespace {

using test::FisYap;
using test::Kayit;
using test::Ozet;
using test::Satir;

Brd TamKayit() {
  Brd b = Kayit("1", 1000, 700);
  b.topyardim = Tutar(100);
  b.sskmatrah = Tutar(950);
  b.sskkesinti = Tutar(133);
  b.issizisci = Tutar(9.5);
  b.gvmatrah = Tutar(850);
  b.gvtutar = Tutar(127.5);
  b.dvtutar = Tutar(6);
  b.ogv = Tutar(50);
  b.sskmatrahisveren = Tutar(960);
  b.sskkesintiisveren = Tutar(187.2);
  b.issizisveren = Tutar(19.2);
  return b;
}

// By hand, place after place, for one record and for three of them.
TEST(YerToplamlari, EveryPlace) {
  constexpr double beklenen[YerSayisi] = {0,     700, 200,   300, 100, 1000, 950, 133,   9.5,  142.5, 850,
                                          127.5, 6,   133.5, 276, 50,  774,  960, 187.2, 19.2, 206.4, 348.9};
  YerToplamlari bir, uc;
  bir.Ekle(TamKayit());
  for (int i = 0; i < 3; ++i) uc.Ekle(TamKayit());
  for (int yer = 0; yer < int(YerSayisi); ++yer) {
    EXPECT_EQ(bir[yer], Tutar(beklenen[yer])) << yer << " " << YerAdlari[std::size_t(yer)];
    EXPECT_EQ(uc[yer], Tutar(3 * beklenen[yer])) << yer;
  }
}

TEST(Fis, GroupsMeetOnTheirCommonAccounts) {
  const Fis fis = FisYap({{"A", Kayit("1", 1000)}, {"A", Kayit("2", 500)}, {"B", Kayit("3", 200)}},
                         {Satir("A", 0, 5, 0, "770"), Satir("A", 1, 16, 1, "335"), Satir("B", 0, 5, 0, "720"),
                          Satir("B", 1, 16, 1, "335")});
  EXPECT_EQ(Ozet(fis), "770 B 1500, 335 A 1700, 720 B 200");
  EXPECT_EQ(fis.borc, Tutar(1700));
  EXPECT_EQ(fis.alacak, Tutar(1700));
  EXPECT_EQ(fis.satirlar[0].ack, "Aralık 2009 Ücret Tahakkuku");
  EXPECT_TRUE(fis.uyarilar.empty() && fis.dusenler.empty());
}

TEST(Fis, SideIsTheSignOfWhatIsLeft) {
  const std::vector<Entpar> satirlar{Satir("A", 0, 5, 1, "360"), Satir("A", 1, 1, 0, "360"), Satir("A", 2, 5, 0, "x"),
                                     Satir("A", 3, 5, 1, "X")};
  const Fis fis = FisYap({{"A", Kayit("1", 1000, 300)}}, satirlar);
  EXPECT_EQ(Ozet(fis), "360 A 700") << "two opposite lines on one account leave nothing";
  EXPECT_EQ(fis.Bakiye(), Tutar(-700));
}

TEST(Fis, AGroupThatPaysNothingOutLeaksNothing) {
  Brd borclu = Kayit("1", 100);
  borclu.gvtutar = Tutar(100);
  const Fis fis = FisYap({{"", Kayit("0", 77)}, {"A", borclu}, {"B", Kayit("2", 10)}, {"Ç", Kayit("3", 5)}},
                         {Satir("A", 0, 5, 0, "770"), Satir("B", 0, 5, 0, "720")});
  EXPECT_EQ(Ozet(fis), "720 B 10");
  ASSERT_EQ(fis.uyarilar.size(), 3u) << "people without a group, the group without pay, the group without lines";
  EXPECT_THAT(fis.uyarilar[0].metin, testing::StartsWith("Özel kodu olmayan personel"));
  EXPECT_THAT(fis.uyarilar[1].metin, testing::StartsWith("A grubu fişe girmedi: net ödenen"));
  EXPECT_THAT(fis.uyarilar[2].metin, testing::StartsWith("Ç grubu fişe girmedi: entegrasyon parametresi yok"));
}

TEST(Fis, LinesThatTakeNothing) {
  const Fis fis =
      FisYap({{"a", Kayit("1", 10)}, {"A", Kayit("2", 5)}},
             {Satir("A", 0, 0, 0, ""), Satir("A", 1, 5, 0, ""), Satir("A", 2, 99, 0, "1"), Satir("A", 3, 5, 0, "770")});
  EXPECT_EQ(Ozet(fis), "770 B 15") << "groups ignore case";
  EXPECT_EQ(fis.uyarilar.size(), 2u) << "without an account; a place of no list";
}

TEST(Fis, FiftyAccountsAndNoMore) {
  std::vector<Entpar> satirlar;
  std::vector<std::pair<std::string, Brd>> kayitlar;
  for (int grup = 0; grup < 6; ++grup) {
    const std::string ad(1, char('A' + grup));
    kayitlar.emplace_back(ad, Kayit(ad, 1));
    for (int no = 0; no < 10; ++no)
      satirlar.push_back(Satir(ad.c_str(), no, no == 9 ? 0 : 5, 0, (ad + std::to_string(no)).c_str()));
  }
  satirlar.push_back(Satir("F", 9, 5, 0, "A0"));
  const Fis fis = FisYap(kayitlar, satirlar);
  EXPECT_EQ(fis.satirlar.size(), EnCokHesap);
  EXPECT_EQ(fis.dusenler.size(), 4u) << "54 accounts; lines that take nothing are none";
  EXPECT_EQ(fis.dusenler.at(0).metin, "Fazla Grup Yaratılmış...\nF grubu, 5 nolu satır: F5");
  EXPECT_EQ(fis.satirlar[0].tutar, Tutar(2)) << "an account that has its row still takes lines";
  EXPECT_EQ(FisYap({}, satirlar).Bos(), true);
}

// From a store: the same as by hand, for all groups and for one; a record of a person whose card is gone is in none.
TEST(Fis, FromTheStore) {
  test::OrnekDepo depo;
  Motor& motor = depo.db.IcMotor();
  KayitYazici<Sicil> kartlar(motor);
  KayitYazici<Brd> kayitlar(motor);
  KayitYazici<Entpar> satirlar(motor);
  const char* const gruplar[] = {"", "b", "A", "B", "%"};
  for (int i = 0; i < 5; ++i) {
    Sicil s;
    s.kod = std::to_string(i);
    s.ozel = gruplar[i];
    kartlar.Ekle(s);
    kayitlar.Ekle(Kayit(s.kod, 10 * (i + 1)));
    Brd baskaAy = Kayit(s.kod, 1e6);
    baskaAy.ay = 11;
    kayitlar.Ekle(baskaAy);
  }
  kayitlar.Ekle(Kayit("gitti", 1e6));
  for (const Entpar& s : {Satir("B", 0, 5, 0, "720"), Satir("A", 0, 5, 0, "770"), Satir("%", 0, 5, 0, "1_'")})
    satirlar.Ekle(s);
  EXPECT_THAT(EntegreGruplari(motor), testing::ElementsAre("%", "A", "B"));
  EXPECT_EQ(Ozet(FisOku(motor, {2009, 12})), "1_' B 50, 770 B 30, 720 B 60");
  EXPECT_EQ(Ozet(FisOku(motor, {2009, 12, "b"})), "720 B 60");
  EXPECT_EQ(Ozet(FisOku(motor, {2009, 12, "%"})), "1_' B 50");
  EXPECT_TRUE(FisOku(motor, {2009, 10}).Bos());
}

}  // namespace
}  // namespace belvani
