// Declared expenses: what a row saves, what it refuses, and a file of them.
#include "deductions/ogiharcama.h"

#include "deductions/ogiaktarim.h"
#include "deductions/sirket.h"

namespace belvani {
namespace {

using test::OgiSirketi;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

struct OgiHarcama : testing::Test {
  OgiSirketi s;

  OgiHarcama() {
    s.Kisi("001");
    s.Kisi("K2");
  }
  Yazim<Dvr> Kaydet(int yil, const std::string& kod, double matrah, double harcama) {
    const auto kisi = OgiKisisiBul(s.o, yil, kod);
    EXPECT_TRUE(kisi) << kisi.KusurMetni();
    Okunan<Dvr> girilen{.ilk = kisi->dvr, .simdi = kisi->dvr.value_or(Dvr{})};
    girilen.simdi.kod = kod;
    girilen.simdi.gvmatrah = Tutar(matrah);
    girilen.simdi.ogimatrah = Tutar(harcama);
    return OgiHarcamaKaydet(s.o, OgiKosullariYukle(s.o, yil), girilen);
  }
  Dvr Kayit(const std::string& yilkod) {
    const auto kayitlar = KayitlariOku<Dvr>(s.motor(), "where yilkod = ?", {yilkod});
    EXPECT_THAT(kayitlar, SizeIs(1)) << yilkod;
    return kayitlar.empty() ? Dvr{} : kayitlar[0];
  }
  Sonuc<AktarimSonucu> Aktar(int yil, const std::string& csv, AktarimKipi kip = AktarimKipi::Kaydet) {
    return OgiHarcamaAktar(s.o, yil, csv, kip);
  }
};

TEST_F(OgiHarcama, SavesTheExpenseWithItsRefund) {
  s.Devir("001", 2004, 12000, 0, 99, 50);
  ASSERT_TRUE(Kaydet(2004, "001", 12000, 3500));
  const Dvr d = Kayit("2004001");
  EXPECT_EQ((std::array{d.gvmatrah, d.ogimatrah, d.ogitutar, d.ogiodenen}),
            (std::array{Tutar(12000), Tutar(3500), Tutar(270), Tutar(50)}));

  ASSERT_TRUE(Kaydet(2004, " k2", 1000, 3500)) << "a person without a record gets one";
  const Dvr yeni = Kayit("2004K2");
  EXPECT_EQ(yeni.kod, "K2");
  EXPECT_EQ(yeni.yil, 2004);
  EXPECT_EQ((std::array{yeni.gvmatrah, yeni.gvtutar, yeni.issizlik, yeni.ogimatrah, yeni.ogitutar, yeni.ogiodenen}),
            (std::array{Tutar(1000), Tutar(), Tutar(), Tutar(3500), Tutar(80), Tutar()}));

  // The old rule holds the tax of the year against the table; without one it is below zero.
  s.TabloKur(2003);
  ASSERT_TRUE(Kaydet(2003, "001", 4000, 900));
  EXPECT_EQ(Kayit("2003001").ogitutar, Tutar(-555.0)) << "15 % of 4,000 less a third of 900";
  const auto liste = OgiHarcamalariOku(s.o, 2004);
  ASSERT_TRUE(liste);
  ASSERT_THAT(*liste, SizeIs(2));
  EXPECT_EQ((*liste)[0].adSoyad, "Işıl Çağlar");
}

TEST_F(OgiHarcama, RefusesWhatCannotStand) {
  EXPECT_EQ(OgiKisisiBul(s.o, 2004, "yok").KusurMetni(), "Personel Kodu Bulunamadı");
  EXPECT_EQ(OgiKisisiBul(s.o, 2004, "  ").KusurMetni(), "Personel Sicil Kodunu Giriniz.");
  EXPECT_EQ(Kaydet(2004, "001", 1000, -1).KusurMetni(), "Harcama eksi olamaz");
  EXPECT_EQ(Kaydet(2004, "001", -1000, 1).KusurMetni(), "Kum.G.V. Matrahı eksi olamaz");
  ASSERT_TRUE(OzelGvKaydet(s.o.DataPath, {}));
  EXPECT_THAT(Kaydet(2003, "001", 1000, 1).KusurMetni(), HasSubstr("GV Tablosu boş"));
  EXPECT_EQ(s.Sql("select count(*) from dvr"), 0) << "nothing was stored";
}

TEST_F(OgiHarcama, AnotherUsersChangeIsToldAndCalculatedWith) {
  s.Devir("001", 2003, 4000, 0, 0);
  s.TabloKur(2003);
  Okunan<Dvr> girilen{.ilk = Kayit("2003001"), .simdi = Kayit("2003001")};
  girilen.simdi.ogimatrah = Tutar(900);
  s.motor().Calistir("update dvr set gvtutar = 6000000");
  const auto yazilan = OgiHarcamaKaydet(s.o, OgiKosullariYukle(s.o, 2003), girilen);
  ASSERT_FALSE(yazilan);
  ASSERT_TRUE(yazilan.Kusuru().cakisma);
  Uzlastir(girilen, *yazilan.Kusuru().cakisma, Galip::Benimki);
  ASSERT_TRUE(OgiHarcamaKaydet(s.o, OgiKosullariYukle(s.o, 2003), girilen));
  EXPECT_EQ(Kayit("2003001").ogitutar, Tutar(600 - 555));
}

TEST_F(OgiHarcama, DeletionClearsTheExpenseAlone) {
  s.Devir("001", 2004, 12000, 3500, 270, 50);
  s.bildirim.cevap = false;
  EXPECT_EQ(*OgiHarcamaSil(s.o, "2004001", s.bildirim), std::nullopt);
  EXPECT_EQ(Kayit("2004001").ogimatrah, Tutar(3500));
  s.bildirim.cevap = true;
  ASSERT_TRUE(OgiHarcamaSil(s.o, "2004001", s.bildirim));
  const Dvr d = Kayit("2004001");
  EXPECT_EQ((std::array{d.ogimatrah, d.ogitutar, d.ogiodenen}), (std::array{Tutar(), Tutar(270), Tutar(50)}));
  EXPECT_EQ(OgiHarcamaSil(s.o, "2005001", s.bildirim).KusurMetni(), "Silinecek Kayıt Bulunamadı");
  EXPECT_THAT(s.bildirim.Al(), testing::Each(HasSubstr("Kayıt Silinecek Eminmisiniz ?")));
}

TEST_F(OgiHarcama, AFileIsTakenWholeOrNotAtAll) {
  s.Devir("001", 2004, 12000, 0, 0);
  const auto alinan = Aktar(2004, "kod;harcama\n001;3500,00\nk2;100\n");
  ASSERT_TRUE(alinan) << alinan.KusurMetni();
  EXPECT_EQ(std::pair(alinan->eklenen, alinan->degisen), std::pair(1, 1));
  ASSERT_THAT(alinan->uyarilar, SizeIs(1)) << "the new one has no base";
  EXPECT_EQ(alinan->uyarilar[0].kod + alinan->uyarilar[0].metin, "k22004 yılının G.V. matrahı yok, hak ediş 0");
  EXPECT_EQ(Kayit("2004001").ogitutar, Tutar(270));
  ASSERT_TRUE(Aktar(2004, "kod,ogimatrah,gvmatrah\nK2,100,5000\n"));
  EXPECT_EQ(Kayit("2004K2").ogitutar, Tutar(8));

  const std::pair<const char*, const char*> bozuklar[] = {{"kod,harcama\n001,1\nyok,1\n", "bu kodla personel yok"},
                                                          {"kod,harcama\n001,1\n001,2\n", "dosyada iki kez var"},
                                                          {"kod,harcama\n001,1\n,2\n", "boş bırakılamaz"},
                                                          {"kod,harcama\n001,1\nK2,-2\n", "Harcama eksi olamaz"},
                                                          {"kod,harcama\n001,1\nK2,bin\n", "harcama: "},
                                                          {"kod,harcama,ogimatrah\n001,1,2\n", "birlikte verilemez"},
                                                          {"kod,gvmatrah\n001,1\n", "bu sütun dosyada olmalı"},
                                                          {"kod,harcama,ucret\n001,1,2\n", "böyle bir alan yok"},
                                                          {"harcama\n1\n", "bu sütun dosyada olmalı"}};
  for (const auto& [csv, neden] : bozuklar) {
    const auto red = Aktar(2004, csv);
    ASSERT_TRUE(red) << csv;
    ASSERT_FALSE(red->sorunlar.empty()) << csv;
    EXPECT_THAT(red->sorunlar[0].metin, HasSubstr(neden));
    EXPECT_EQ(Kayit("2004001").ogimatrah, Tutar(3500)) << csv;
  }
  ASSERT_TRUE(Aktar(2004, "kod,harcama\n001,1\n", AktarimKipi::YalnizDene));
  EXPECT_EQ(Kayit("2004001").ogimatrah, Tutar(3500)) << "only tried out";
  ASSERT_TRUE(OzelGvKaydet(s.o.DataPath, {}));
  EXPECT_THAT(Aktar(2004, "kod,harcama\n001,1\n").KusurMetni(), HasSubstr("GV Tablosu boş"));
}

TEST_F(OgiHarcama, WhatStandsBehindTheCalculationIsTold) {
  EXPECT_THAT(OgiKosullariYukle(s.o, 2004).uyarilar, SizeIs(0));
  EXPECT_THAT(OgiKosullariYukle(s.o, 2005).uyarilar, ElementsAre(HasSubstr("2005 yılı için yayımlanandan farklı")));
  EXPECT_THAT(OgiKosullariYukle(s.o, 2007).uyarilar, ElementsAre(HasSubstr("yayımlanmış bir")));
  ASSERT_TRUE(DosyaYaz(s.o.FirmaDizini + "ozgvpar.dat", "kısa"));
  EXPECT_THAT(OgiKosullariYukle(s.o, 2004).uyarilar, ElementsAre(HasSubstr("hazır değerler yazıldı")));
  EXPECT_EQ(OgiParametreleriYukle(s.o).deger.mahyil, 2005);
}

}  // namespace
}  // namespace belvani
