// Years carried over, a person's past months and account: what is summed, what is stored, what is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

#include "core/asama.h"
#include "payroll/devir/aylikbilgi.h"
#include "payroll/devir/cari.h"
#include "payroll/devir/devirkaydi.h"
#include "payroll/devir/yillikdevir.h"
#include "payroll/hazirlik/aysaklama.h"
#include "payroll/hazirlik/kisi.h"
#include "payroll/hazirlik/sirket.h"
#include "payroll/hazirlik/sirketdenetimi.h"

namespace belvani {
namespace {

using test::Iletiler;
using test::Sirket;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Devir : testing::Test, Sirket {
  Brd Ay(const std::string& kod, int yil, int ay, double matrah = 100, double vergi = 15) {
    Brd b;
    b.kod = kod;
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = 1;
    b.gvmatrah = Tutar(matrah);
    b.gvtutar = Tutar(vergi);
    b.issizisci = Tutar(1.005);
    b.issizisveren = Tutar(2.01);
    return b;
  }
  std::vector<Dvr> Devirler() { return KayitlariOku<Dvr>(motor(), "order by yilkod"); }
  // What a file has against it, row and text; nothing: it was taken.
  static Iletiler Sorunlar(const Sonuc<AktarimSonucu>& sonuc) {
    if (!sonuc) return {sonuc.KusurMetni()};
    Iletiler metinler;
    for (const Kusur& k : sonuc->sorunlar) metinler.push_back(std::to_string(k.satir) + " " + k.metin);
    return metinler;
  }
};

TEST_F(Devir, AYearIsSummedUpByPersonAndRoundedAsTheCompanysMoney) {
  for (int ay = 1; ay <= 3; ++ay) Yaz(Ay("a1", 2008, ay));
  Yaz(Ay("A1", 2009, 1));
  Yaz(Ay("B2", 2008, 12, 0.335, 0.005));
  o.firma.paraonda = 2;
  auto sonuc = YillikDevir(o, 2008);
  ASSERT_TRUE(sonuc) << sonuc.KusurMetni();
  EXPECT_EQ(sonuc->kisi, 2);
  auto d = Devirler();
  ASSERT_EQ(d.size(), 2u);
  EXPECT_EQ(d[0].yilkod, "2008a1");
  EXPECT_EQ(d[0].yil, 2008);
  EXPECT_EQ(d[0].gvmatrah, Tutar(300));
  EXPECT_EQ(d[0].gvtutar, Tutar(45));
  EXPECT_EQ(d[0].issizlik, Tutar(9.05)) << "three times 3.015, both sides together, a half goes up";
  EXPECT_EQ(d[1].gvmatrah, Tutar(0.34));
  o.firma.paraonda = 0;
  ASSERT_TRUE(YillikDevir(o, 2008));
  EXPECT_EQ(Devirler()[0].issizlik, Tutar(9)) << "amounts without decimals, as those of old lira";
}

TEST_F(Devir, ARepeatedRunKeepsTheSpecialExpensesAndOverwritesTheSums) {
  Kisi("1", 1000);
  Yaz(Ay("1", 2008, 1));
  ASSERT_TRUE(YillikDevir(o, 2008));
  Dvr d = DevirBilgileri(o, "1").at(0), yazilan = d;
  yazilan.ogimatrah = Tutar(50);
  yazilan.gvmatrah = Tutar(7777);
  ASSERT_TRUE(DevirKaydet(o, {d, yazilan}));
  ASSERT_TRUE(YillikDevir(o, 2008));
  d.ogimatrah = Tutar(50);
  EXPECT_EQ(DevirBilgileri(o, "1"), std::vector{d});
  motor().Calistir("create trigger engel before update on dvr begin select raise(abort, 'x'); end");
  EXPECT_THAT(YillikDevir(o, 2008)->yazilamayanlar, IsEmpty()) << "what says the same is left alone";
  ASSERT_TRUE(YillikDevir(o, 2005)) << "a year without records is one too";
  EXPECT_EQ(YillikDevir(o, 2002).KusurMetni(), "Hatalı Dönem Seçilmiş..");
}

TEST_F(Devir, EmptySumsAreZeros) {
  motor().Calistir("insert into brd (kod, yil, ay, no) values ('1', 2008, 1, 1)");
  ASSERT_TRUE(YillikDevir(o, 2008));
  ASSERT_EQ(Devirler().size(), 1u);
  EXPECT_EQ(Devirler()[0].gvmatrah, Tutar());
}

TEST_F(Devir, ARowThatTheStoreRefusesIsToldAndTheOthersGoOn) {
  for (const char* kod : {"1", "2", "3"}) Yaz(Ay(kod, 2008, 1));
  motor().Calistir("create trigger engel before insert on dvr when new.kod = '2' begin select raise(abort, 'x'); end");
  const auto sonuc = YillikDevir(o, 2008);
  ASSERT_TRUE(sonuc);
  ASSERT_EQ(sonuc->yazilamayanlar.size(), 1u);
  EXPECT_EQ(sonuc->yazilamayanlar[0].metin, "Kod : 2\nDataBase Güncellenemedi.");
  EXPECT_EQ(Devirler().size(), 2u);
}

// Stopped anywhere, the year is as it was.
TEST_F(Devir, AStoppedRunChangesNothing) {
  for (int i = 0; i < 20; ++i) Yaz(Ay(std::to_string(i), 2008, 1));
  struct Durduran final : Ilerleme {
    int kalan = 0;
    bool kesinOlur = false;
    bool Adim(std::size_t, std::size_t) override { return kalan-- > 0; }
    bool Kesin() override { return kesinOlur; }
  } ilerleme;
  for (const int adim : {0, 5, 20, 30, 100}) {
    ilerleme.kalan = adim;
    EXPECT_THROW((void)YillikDevir(o, 2008, &ilerleme), Vazgecilmis) << adim;
    EXPECT_THAT(Devirler(), IsEmpty()) << adim;
  }
  ilerleme.kalan = 100;
  ilerleme.kesinOlur = true;
  EXPECT_TRUE(YillikDevir(o, 2008, &ilerleme));
  EXPECT_EQ(Devirler().size(), 20u);
}

TEST_F(Devir, ARowOfAYearIsAddedChangedAndDeleted) {
  Kisi("a1", 1000);
  Dvr yeni;
  yeni.kod = "A1";
  yeni.yil = 2008;
  yeni.ogitutar = Tutar(12.5);
  auto yazilan = DevirKaydet(o, {.simdi = yeni});
  ASSERT_TRUE(yazilan);
  EXPECT_EQ(yazilan->yilkod, "2008a1") << "as the card spells the code";
  EXPECT_TRUE(DevirKaydet(o, {.simdi = yeni}).Kusuru().cakisma) << "the year has a row by now";

  Dvr baskaYil = *yazilan;
  baskaYil.yil = 2007;
  ASSERT_TRUE(DevirKaydet(o, {*yazilan, baskaYil}));
  EXPECT_EQ(DevirBilgileri(o, "a1").size(), 2u) << "a year that is typed over is another row";
  baskaYil.yil = 20;
  EXPECT_THAT(DevirKaydet(o, {*yazilan, baskaYil}).KusurMetni(), HasSubstr("Yılı: 1990 ile"));
  yeni.kod = "yok";
  EXPECT_EQ(DevirKaydet(o, {.simdi = yeni}).KusurMetni(), "Bu Kodda Personel Yok: yok");

  EXPECT_EQ(*DevirSil(o, *yazilan, bildirim), Silme::Silindi);
  EXPECT_EQ(bildirim.Al(), Iletiler{"Soru: Bu Satırdaki Devir Kaydını Silecekmisiniz ?\n2008"});
  EXPECT_EQ(DevirSil(o, *yazilan, bildirim).KusurMetni(), "Devir Kaydı Bulunamadı");
}

TEST_F(Devir, AFileOfYearsIsTakenWholeOrNotAtAll) {
  Kisi("a1", 1000);
  EXPECT_THAT(Sorunlar(DevirAktar(o, "kod;yil;gvmatrah\nA1;2008;100,50\na1;1208;1\nyok;2008;1\na1;2008;2\n;2008;\n",
                                  AktarimKipi::Kaydet)),
              ElementsAre("3 yil: 1990 ile 2100 arasında olmalı", "6 kod: boş bırakılamaz",
                          "4 kod: bu kodla personel yok: yok", "5 yil: kişinin bu yılı dosyada iki kez var"));
  EXPECT_THAT(Sorunlar(DevirAktar(o, "kod;yilkod\na1;2008a1\n", AktarimKipi::Kaydet)),
              testing::Contains(HasSubstr("yilkod: bu anahtarı program yapar")));
  EXPECT_THAT(Devirler(), IsEmpty());
  EXPECT_TRUE(DevirAktar(o, "kod;yil;gvmatrah;ogitutar\na1;2008;100,50;7\n", AktarimKipi::Kaydet)->sorunlar.empty());
  const auto sonuc = DevirAktar(o, "kod;yil;gvmatrah\nA1;2008;200\na1;2007;1\n", AktarimKipi::Kaydet);
  EXPECT_EQ(sonuc->degisen, 1);
  EXPECT_EQ(sonuc->eklenen, 1);
  EXPECT_EQ(Devirler()[1].gvmatrah, Tutar(200));
  EXPECT_EQ(Devirler()[1].ogitutar, Tutar(7)) << "columns that the file lacks stay";
}

struct AylikBilgi : Devir {
  Brd Kayitli(const Brd& b) {
    const auto yazilan = AylikBilgiKaydet(o, {.simdi = b});
    EXPECT_TRUE(yazilan);
    return *yazilan;
  }
};

TEST_F(AylikBilgi, AMonthIsStoredAsItStandsAndCountsInTheYear) {
  Kisi("a1", 693);
  Brd b = Ay("A1", 2009, 6, 1234.56, 185.18);
  b.no = 0;
  b = Kayitli(b);
  EXPECT_EQ(b.no, 1);
  EXPECT_EQ(b.gvtutar, Tutar(185.18)) << "nothing is calculated";
  const auto kisi = KisiOku(motor(), Kosul(2009, 7).donem, "a1");
  ASSERT_TRUE(kisi);
  EXPECT_EQ(kisi->yil.gvmatrah, Tutar(1234.56));

  motor().Calistir("update brd set gocindir = 50000, fm1 = 3");
  b = AylikBilgiler(o, "a1", 2009).at(0);
  Brd yeni = b;
  yeni.ogv = Tutar(12);
  ASSERT_TRUE(AylikBilgiKaydet(o, {b, yeni}));
  const Brd son = AylikBilgiler(o, "a1", 2009).at(0);
  EXPECT_EQ(son.ogv, Tutar(12));
  EXPECT_EQ(son.gocindir, Tutar(5)) << "what the screen does not show rides along";
  EXPECT_EQ(son.fm1, Tek(3));
  EXPECT_THAT(*DepoDenetle(o), IsEmpty()) << "with its checksum";

  EXPECT_TRUE(AylikBilgiKaydet(o, {b, b}).Kusuru().cakisma) << "another user has changed it";
  EXPECT_TRUE(AylikBilgiKaydet(o, {.simdi = Ay("a1", 2009, 6)}).Kusuru().cakisma) << "another user has added it";
}

TEST_F(AylikBilgi, WhatCannotBeAMonthIsRefused) {
  Kisi("a1", 693);
  const Brd haziran = Kayitli(Ay("a1", 2009, 6));
  Kayitli(Ay("a1", 2009, 7));
  const auto kusur = [&](const Okunan<Brd>& k) { return AylikBilgiKaydet(o, k).KusurMetni(); };
  EXPECT_EQ(kusur({.simdi = Ay("a1", 2009, 13)}), "Ay: 1 ile 12 arasında olmalı");
  EXPECT_THAT(kusur({.simdi = Ay("a1", 29, 1)}), HasSubstr("Dönem Yıl"));
  EXPECT_EQ(kusur({.simdi = Ay("x", 2009, 1)}), "Bu Kodda Personel Yok: x");
  Brd temmuz = haziran;
  temmuz.ay = 7;
  EXPECT_THAT(kusur({haziran, temmuz}), HasSubstr("Temmuz.2009 bordrosu zaten var"));
  Brd mayis = haziran;
  mayis.ay = 5;
  ASSERT_TRUE(AylikBilgiKaydet(o, {haziran, mayis}));
  motor().Calistir("create trigger engel before delete on brd begin select raise(abort, 'x'); end");
  EXPECT_EQ(AylikBilgiSil(o, mayis, bildirim).KusurMetni(), "Bordro Kaydı Silinemedi");
  motor().Calistir("drop trigger engel");
  EXPECT_EQ(*AylikBilgiSil(o, mayis, bildirim), Silme::Silindi);
  EXPECT_EQ(bildirim.Al().back(), "Soru: Bu Satırdaki Bordro Kaydını Silecekmisiniz ?\na1, Mayıs.2009");
  EXPECT_EQ(AylikBilgiSil(o, mayis, bildirim).KusurMetni(), "Bordro Kaydı Bulunamadı");
  motor().Calistir("create trigger engel before insert on brd begin select raise(abort, 'x'); end");
  EXPECT_EQ(kusur({.simdi = Ay("a1", 2009, 1)}), "Kayıt Yapılamıyor");
}

TEST_F(AylikBilgi, AMonthTellsWhereItBreaksItsOwnArithmetic) {
  Brd b;
  b.brutkaz = b.sskmatrah = b.sskmatrahisveren = b.dvmatrah = Tutar(1000);
  b.sskiscior = Tek(14);
  b.sskisverenor = Tek(19.5);
  b.damgaveror = Tek(6);
  b.sskkesinti = Tutar(140.01);
  b.sskkesintiisveren = Tutar(195);
  b.dvtutar = Tutar(6);
  EXPECT_THAT(AritmetikKusurlari(b, 2), IsEmpty()) << "to 0.01";
  b.sskkesinti = Tutar(140.02);
  EXPECT_THAT(AritmetikKusurlari(b, 2), ElementsAre("SSK işçi primi 140.02, matrah x oran 140.00"));
  EXPECT_THAT(AritmetikKusurlari(b, 0), ElementsAre(HasSubstr("SSK işçi primi")));
  b.sskkesinti = Tutar(140);
  b.sskkesintiisveren = Tutar(100);
  b.dvtutar = Tutar(7);
  EXPECT_THAT(AritmetikKusurlari(b, 2), ElementsAre(HasSubstr("damga vergisi 7.00"), HasSubstr("SSK işveren primi")));
  b.ui = 5;
  b.gvtutar = Tutar(854);
  EXPECT_THAT(AritmetikKusurlari(b, 2),
              ElementsAre(HasSubstr("Brüt kazanç 1,000.00, prim ve vergilerin toplamı olan 1,001.00"),
                          HasSubstr("damga vergisi")))
      << "paid leave relieves the employer";
  b.gvtutar = Tutar::Hamdan(std::numeric_limits<std::int64_t>::max());
  EXPECT_THAT(AritmetikKusurlari(b, 2), ElementsAre(HasSubstr("Tutar sınırı")));
}

// What the program itself calculates breaks nothing, in any era.
TEST_F(AylikBilgi, CalculatedMonthsAreSound) {
  std::mt19937 rastgele(13);
  for (int i = 0; i < 60; ++i) {
    Kisi(std::to_string(i), 300 + int(rastgele() % 9000) / 7.0, Tarih(2003, 1, 1));
    motor().Calistir("update sicil set sskdurum = " + std::to_string(rastgele() % 7) + ", kanun = '" +
                     (i % 3 == 0 ? "05510" : "") + "' where kod = '" + std::to_string(i) + "'");
  }
  int kayit = 0;
  for (const auto& [yil, ay] : {std::pair(2005, 3), {2007, 9}, {2008, 3}, {2009, 7}, {2009, 12}}) {
    ASSERT_TRUE(Hazirla(yil, ay).kaydedildi);
    for (const Brd& b : Kayitlar(yil, ay)) {
      ++kayit;
      EXPECT_THAT(AritmetikKusurlari(b, o.firma.paraonda), IsEmpty()) << b.kod << " " << yil << "/" << ay;
    }
  }
  EXPECT_GT(kayit, 200);
}

TEST_F(AylikBilgi, AFileOfMonthsStandsAsItIsAndTheMonthBeforeItIsKept) {
  Kisi("a1", 693);
  Kisi("b2", 693);
  Brd eski = Ay("b2", 2009, 2, 500);
  eski.fm1 = Tek(4);
  Yaz(eski);
  const char* const dosya =
      "kod;yil;ay;ng;sskmatrah;sskiscior;sskkesinti;gvmatrah;brutkaz\n"
      "a1;2009;1;30;1000;14;150;850;1000\nA1;2009;2;30;1000;14;140;860;1000\nB2;2009;2;28;700;14;98;602;700\n";
  EXPECT_TRUE(KartAktar(o, dosya, AktarimKipi::YalnizDene)->sorunlar.empty());
  EXPECT_THAT(AylikBilgiler(o, "a1", 2009), IsEmpty());
  const auto sonuc = KartAktar(o, dosya, AktarimKipi::Kaydet);
  ASSERT_TRUE(sonuc) << sonuc.KusurMetni();
  EXPECT_EQ(sonuc->eklenen, 2);
  EXPECT_EQ(sonuc->degisen, 1);
  ASSERT_EQ(sonuc->uyarilar.size(), 1u);
  EXPECT_EQ(sonuc->uyarilar[0].satir, 2);
  EXPECT_EQ(sonuc->uyarilar[0].metin, "SSK işçi primi 150.00, matrah x oran 140.00");
  const auto a1 = AylikBilgiler(o, "a1", 2009);
  ASSERT_EQ(a1.size(), 2u);
  EXPECT_EQ(a1[0].sskkesinti, Tutar(150));
  EXPECT_EQ(a1[1].no, 1);
  EXPECT_EQ(a1[1].kod, "a1");
  const Brd b2 = AylikBilgiler(o, "b2", 2009).at(0);
  EXPECT_EQ(b2.gvmatrah, Tutar(602));
  EXPECT_EQ(b2.fm1, Tek(4)) << "columns that the file lacks stay";
  EXPECT_THAT(*DepoDenetle(o), IsEmpty());

  ASSERT_TRUE(AyiGeriAl(o, 2009, 2, bildirim));
  EXPECT_EQ(AylikBilgiler(o, "b2", 2009).at(0).gvmatrah, Tutar(500));
  EXPECT_EQ(AylikBilgiler(o, "a1", 2009).size(), 1u) << "the month was without him";

  EXPECT_THAT(
      Sorunlar(KartAktar(o, "kod;yil;ay;no;oto\na1;2009;13;1;1\na1;2009;1;2;2\na1;2009;1;1;3\n", AktarimKipi::Kaydet)),
      ElementsAre("1 oto: bu numarayı program verir, dosyada olamaz", "2 ay: 1 ile 12 arasında olmalı",
                  "3 no: bordro numarası 1 olmalı", "4 ay: kişinin bu ayı dosyada iki kez var"));
}

struct CariHesap : Devir {
  CariHesap() { Kisi("a1", 693); }
  Okunan<Cari> Hareket(Tarih tarih, char islem, double tutar, const std::string& ack = {}) {
    Okunan<Cari> k;
    k.simdi.kod = "A1";
    k.simdi.tarih = tarih;
    k.simdi.islem = std::uint8_t(islem);
    k.simdi.tutar = Tutar(tutar);
    k.simdi.ack = ack;
    return k;
  }
  std::vector<std::optional<Tutar>> Bakiye() { return Bakiyeler(CariOku(o, "a1")); }
};

TEST_F(CariHesap, TheBalanceRunsDownTheDays) {
  ASSERT_TRUE(CariKaydet(o, Hareket(Tarih(2009, 5, 15), 'A', 30)));
  ASSERT_TRUE(CariKaydet(o, Hareket(Tarih(2009, 5, 1), 'B', 100, "Avans")));
  EXPECT_THAT(Bakiye(), ElementsAre(Tutar(100), Tutar(70)));
  ASSERT_TRUE(CariKaydet(o, Hareket(Tarih(2009, 5, 15), 'b', 5)));
  EXPECT_THAT(Bakiye(), ElementsAre(Tutar(100), Tutar(70), Tutar(75))) << "credits of a day come before its debts";
  EXPECT_EQ(CariKaydet(o, Hareket(Tarih(2009, 5, 15), 'C', 5)).KusurMetni(), CariIslemSozu);
  EXPECT_FALSE(CariKaydet(o, Hareket({}, 'B', 5)));
  for (int i = 0; i < 12; ++i) ASSERT_TRUE(CariKaydet(o, Hareket(Tarih(2009, 6, 1), 'B', 99e12)));
  EXPECT_FALSE(Bakiye().back()) << "beyond all amounts there is no balance, and no crash";
  const Cari ilk = CariOku(o, "a1").front();
  EXPECT_EQ(*CariSil(o, ilk, bildirim), Silme::Silindi);
  EXPECT_EQ(bildirim.Al(), Iletiler{"Soru: Bu Satırdaki Cari Kaydını Silecekmisiniz ?\n01.05.2009 B 100.00 Avans"});
}

TEST_F(CariHesap, AFileBringsMovementsByTheirLetters) {
  EXPECT_THAT(Sorunlar(CariAktar(o, "kod;tarih;islem;tutar\na1;01.05.2009;X;1\na1;;B;1\nyok;01.05.2009;B;1\n",
                                 AktarimKipi::Kaydet)),
              ElementsAre("2 islem: borcuna ise B, alacağına ise A olmalı", "3 tarih: boş bırakılamaz",
                          "4 kod: bu kodla personel yok: yok"));
  EXPECT_THAT(Bakiye(), IsEmpty());
  const char* const dosya = "kod;tarih;islem;ack;tutar\nA1;01.05.2009;b;Avans;100,50\na1;02.05.2009;A;;30\n";
  EXPECT_TRUE(CariAktar(o, dosya, AktarimKipi::Kaydet)->uyarilar.empty());
  EXPECT_THAT(Bakiye(), ElementsAre(Tutar(100.5), Tutar(70.5)));
  EXPECT_EQ(CariOku(o, "a1")[0].islem, 66);
  EXPECT_EQ(CariAktar(o, dosya, AktarimKipi::Kaydet)->uyarilar.size(), 2u) << "taken, and told";
  EXPECT_EQ(Bakiye().size(), 4u);
}

}  // namespace
}  // namespace belvani
