// How a person comes up for calculation: rates, template, saved record, carried sums, group flags.
#include "payroll/hazirlik/kisi.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "payroll/hesap/satirlar.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::Sirket;

TEST(Oranlar, AreTheSumsOfTheBranchWithTheWorkAccidentRate) {
  struct Durum {
    const char* ad;
    int yil, ay, sskdurum, tur;
    double isci, isveren, issizlikIsci, issizlikIsveren;
  };
  const Durum durumlar[] = {
      {"all branches until 30.09.2008: 1 + 6 + 11 + 1.5", 2008, 9, 0, 0, 14, 19.5, 1, 2},
      {"law 5510: 7.5 + 11 + 1.5", 2008, 10, 0, 0, 14, 20, 1, 2},
      {"pensioner, no unemployment: 22.5 + 1.5", 2009, 1, 1, 0, 7.5, 24, 0, 0},
      {"apprentice branch bears no work accident", 2008, 9, 6, 0, 2, 2, 0, 0},
      {"board fee", 2009, 1, 0, 1, 0, 0, 0, 0},
      {"a branch without rates", 2009, 1, 40, 0, 0, 0, 0, 0},
  };
  for (const auto& d : durumlar) {
    Sicil s;
    s.sskdurum = std::uint8_t(d.sskdurum);
    s.tur = std::uint8_t(d.tur);
    Brd b;
    OranlariYukle(b, s, test::Yasal(d.yil, d.ay), Tek(1.5));
    EXPECT_EQ(b.sskiscior, Tek(d.isci)) << d.ad;
    EXPECT_EQ(b.sskisverenor, Tek(d.isveren)) << d.ad;
    EXPECT_EQ(b.issiziscior, Tek(d.issizlikIsci)) << d.ad;
    EXPECT_EQ(b.issizisverenor, Tek(d.issizlikIsveren)) << d.ad;
  }
}

TEST(PersonelYukle, TakesTheTemplateForAWholeMonthAndTheDaysForAPart) {
  Sirket sirket;
  sirket.Kisi("1", 900);
  Kosullar k = sirket.Kosul(2009, 3);
  k.firma.sablon.SablonGun[6] = Tek(2.5);
  k.firma.sablon.SablonYardim = {Tutar(10), Tutar(260), Tutar(300)};
  k.firma.sablon.SablonYardimTip = {0, 2, 1};  // fixed; by days worked; by all days
  const KisiVerisi kisi = *KisiOku(sirket.motor(), k.donem, "1");

  const Brd tam = PersonelYukle(kisi, k, 30).giris;
  EXPECT_EQ(tam.ng, 26);
  EXPECT_EQ(tam.ht, 4);
  EXPECT_EQ(tam.fm1, Tek(2.5));
  EXPECT_EQ(tam.yrd01, Tutar(10));
  EXPECT_EQ(tam.yrd02, Tutar(260));
  EXPECT_EQ(tam.yrd03, Tutar(300));

  const Brd yarim = PersonelYukle(kisi, k, 13).giris;
  EXPECT_EQ(yarim.ng, 13) << "the days of a part month are days worked";
  EXPECT_EQ(yarim.ht, 0);
  EXPECT_EQ(yarim.fm1, Tek());
  EXPECT_EQ(yarim.yrd01, Tutar(10));
  EXPECT_EQ(yarim.yrd02, Tutar(130));
  EXPECT_EQ(yarim.yrd03, Tutar(130));
  EXPECT_EQ(yarim.fmo3, Tek(2.5)) << "multipliers come from the overtime table";
  EXPECT_EQ(yarim.damgaveror, Tek(6));
}

TEST(KisiOku, CarriesEarlierMonthsOfTheYearAlone) {
  Sirket sirket;
  sirket.Kisi("a1", 900);
  const auto kayit = [&](int yil, int ay, double matrah, double vergi, double indirim) {
    Brd b;
    b.kod = "A1";  // the codes of cards and records agree without regard to case
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = 1;
    b.gvmatrah = Tutar(matrah);
    b.gvtutar = Tutar(vergi);
    b.indirim2 = Tutar(indirim);
    sirket.Yaz(b);
  };
  kayit(2008, 12, 1000, 150, 1);
  kayit(2009, 1, 100, 15, 2);
  kayit(2009, 2, 200, 30, 4);
  kayit(2009, 3, 400, 60, 8);
  kayit(2009, 4, 800, 120, 16);
  const KisiVerisi kisi = *KisiOku(sirket.motor(), {2009, 3}, "a1");
  EXPECT_EQ(kisi.yil.gvmatrah, Tutar(300));
  EXPECT_EQ(kisi.yil.gvtutar, Tutar(45));
  EXPECT_EQ(kisi.yil.indirimler[1], Tutar(30)) << "deductions of the whole year, this month's too";
  ASSERT_TRUE(kisi.kayit);
  EXPECT_EQ(kisi.kayit->gvmatrah, Tutar(400));
  EXPECT_FALSE(KisiOku(sirket.motor(), {2009, 3}, "b"));
}

TEST(KisilerinTumu, AreReadAsEachOneAlone) {
  Sirket sirket;
  for (const char* kod : {"9", "10", "Çınar", "CEM", "ığdır", "İZMİR", "i", "I"}) {
    sirket.Kisi(kod, 800);
    for (const int yakinlik : {1, 4, 5}) {
      Esco e;
      e.kod = kod;
      e.yakinlik = std::uint8_t(yakinlik);
      e.agiok = yakinlik != 5;
      sirket.Yaz(e);
    }
  }
  sirket.Hazirla(2009, 1);
  sirket.Hazirla(2009, 2);
  std::vector<std::string> sira;
  KisileriOku(sirket.motor(), {2009, 2}, [&](KisiVerisi& kisi) {
    sira.push_back(kisi.sicil.kod);
    const KisiVerisi tek = *KisiOku(sirket.motor(), {2009, 2}, kisi.sicil.kod);
    EXPECT_EQ(kisi.sicil, tek.sicil);
    EXPECT_EQ(kisi.kayit, tek.kayit);
    EXPECT_TRUE(kisi.kayit) << kisi.sicil.kod;
    EXPECT_EQ(kisi.yil.gvmatrah, tek.yil.gvmatrah);
    EXPECT_GT(kisi.yil.gvmatrah, Tutar());
    for (const Aile& aile : {kisi.aile, tek.aile}) {
      EXPECT_EQ(aile.agiEs, 1);
      EXPECT_EQ(aile.agiCocuk, 1);
      EXPECT_EQ(aile.cocuk, 2);
    }
    return true;
  });
  EXPECT_THAT(sira, testing::ElementsAre("10", "9", "CEM", "Çınar", "I", "ığdır", "i", "İZMİR"));
}

TEST(KazancGruplari, SeedTheDefaultOnceAndThenLiveInTheStore) {
  Sirket sirket;
  const auto bayraklar = [&](const char* grup) { return KazancGrupYukle(sirket.Kosul(2009, 1).firma, grup); };
  EXPECT_EQ(bayraklar(""), VarsayilanKazancBayraklari());
  EXPECT_EQ(bayraklar("PERSONEL").k[2], 14) << "group names ignore case";
  EXPECT_EQ(bayraklar("yok"), KazancBayraklari{}) << "a group without a row has no flags at all";

  // From the second time on the files are not asked.
  ASSERT_TRUE(VeriYolu(sirket.o.FirmaDizini).Yaz("kazanc.dat", std::string(9, '\1')));
  EXPECT_EQ(bayraklar(""), VarsayilanKazancBayraklari());
  EXPECT_EQ(KayitlariOku<Kaztan>(sirket.motor()).size(), 1u);
}

TEST(Kosullar, TellWhatIsMissing) {
  Sirket sirket;
  EXPECT_THAT(YasalParametreleriAl(sirket.o.DataPath).KusurMetni(), testing::HasSubstr("yasal2.dat yok ya da boş"));
  const YasalParametreler yasal = test::Yasal(2009, 1);
  sirket.motor().Calistir("update firma set issaati = 0, tehlike = 2, sinif = 6, tersfirma = 1");
  const Kosullar k = sirket.Kosul(2009, 1);
  EXPECT_EQ(k.IsSaati, Tek(8)) << "a company without daily hours works eight";
  EXPECT_EQ(k.TehlikeOran, Tek(4.2));
  EXPECT_EQ(k.donem.Son(), Tarih(2009, 2, 14));
  EXPECT_EQ(k.uygulama, 4);
  sirket.motor().Calistir("delete from firma");
  EXPECT_TRUE(KosullariYukle(sirket.o, yasal, 2009, 1)) << "the session's card stays until it is read again";
  FirmaYukle(sirket.o);
  EXPECT_EQ(KosullariYukle(sirket.o, yasal, 2009, 1).KusurMetni(), "İşyeri Tanımlamaları Yapılmamış");
}

}  // namespace
}  // namespace belvani
