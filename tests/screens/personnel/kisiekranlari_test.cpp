#include <fstream>

#include "ekran/kisiler.h"
#include "ekran/ortam.h"
#include "personnel/aile.h"
#include "personnel/kart.h"
#include "personnel/kimlik.h"
#include "screens/personnel/escofrm.h"
#include "screens/personnel/kontfrm.h"
#include "screens/personnel/nufus.h"
#include "screens/personnel/perbul.h"

namespace belvani::test {
namespace {

struct KisiEkranlari : testing::Test {
  EkranOrtami ortam;

  void SetUp() override { IkiKisiKaydet(ortam.oturum); }
  std::vector<Esco> Aile(const char* kod) { return AileOku(ortam.oturum, kod); }
};

TEST_F(KisiEkranlari, ARelativeIsAddedThenChangedInTheSameRecord) {
  auto& form = ortam.Ac<escofrm>();
  auto& liste = *form.findChild<dclist*>();
  ortam.Yaz("001\n");
  EXPECT_EQ(AlanMetni(form, "adsoy"), "Işıl Öz");
  ASSERT_TRUE(liste.hasFocus());
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("10000000146\nEfe\nÖz\n4\n0\n\nBursa\nIhlamur Sk.\n1\n");  // no birth date
  auto aile = Aile("001");
  ASSERT_EQ(aile.size(), 1u);
  EXPECT_EQ(aile[0].yakinlik, 4);
  EXPECT_EQ(aile[0].agiok, 1);
  EXPECT_TRUE(aile[0].dogtar.Bos());
  EXPECT_EQ(Utf8(liste.TextByName(0, "yakinlik")), "4-1.Çocuk");

  liste.HucreyeGit(0, "adi");
  ortam.Yaz("Ege");
  ortam.Bas(Qt::Key_PageDown);  // to the other person with the row not saved yet
  EXPECT_EQ(AlanMetni(form, "kod"), "002");
  EXPECT_EQ(liste.ListCount(), 0);
  aile = Aile("001");
  ASSERT_EQ(aile.size(), 1u);
  EXPECT_EQ(aile[0].adi, "Ege");
  EXPECT_TRUE(Aile("002").empty());
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});

  ortam.Bas(Qt::Key_PageUp);
  ortam.Bas(Qt::Key_Delete);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Kayıt Silinecek ?\nEge Öz"});
  EXPECT_TRUE(Aile("001").empty());
  EXPECT_EQ(liste.ListCount(), 0);
}

TEST_F(KisiEkranlari, ARowThatCannotBeSavedStaysWithItsPerson) {
  auto& form = ortam.Ac<escofrm>();
  auto& liste = *form.findChild<dclist*>();
  ortam.oturum.depo.db.IcMotor().Calistir(
      "create trigger engel before insert on esco begin select raise(abort, 'x'); end");
  ortam.Yaz("001\n");
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("\nEfe");
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: Eş ve Çocuk Bilgileri Güncellenemedi"});
  EXPECT_EQ(AlanMetni(form, "kod"), "001");
  EXPECT_EQ(Utf8(liste.TextByName(0, "adi")), "Efe");
  AlanBul(form, "kod").Odak()->setFocus();
  ortam.Yaz("002\n");
  EXPECT_EQ(AlanMetni(form, "kod"), "001");
  EXPECT_TRUE(liste.hasFocus());
  ortam.oturum.depo.db.IcMotor().Calistir("drop trigger engel");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Aile("001").size(), 1u);
}

TEST_F(KisiEkranlari, WhatAnotherUserHasWrittenComesOntoTheScreenWithTheSave) {
  auto& form = ortam.Ac<nufus>();
  ortam.Yaz("001\nA12\n");
  ortam.oturum.depo.db.IcMotor().Calistir("update kimlik set tcno = '10000000146'");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(AlanMetni(form, "tcno"), "10000000146");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(KimlikBul(ortam.oturum, "001")->serino + KimlikBul(ortam.oturum, "001")->tcno, "A1210000000146")
      << "a second save takes nothing back";
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST_F(KisiEkranlari, ARelativeWhomAnotherUserHasDeletedGoesFromTheList) {
  auto& form = ortam.Ac<escofrm>();
  ortam.Yaz("001\n");
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("\nEfe");
  ortam.Bas(Qt::Key_F5);
  ortam.oturum.depo.db.IcMotor().Calistir("delete from esco");
  ortam.Bas(Qt::Key_Delete);
  EXPECT_EQ(ortam.bildirim.Al(), (Iletiler{"Soru: Kayıt Silinecek ?", "Bilgi: Silinecek Kayıt Bulunamadı"}));
  EXPECT_EQ(form.findChild<dclist*>()->ListCount(), 0);
}

TEST_F(KisiEkranlari, IdentityIsSavedAndDeletedWithItsCard) {
  auto& form = ortam.Ac<nufus>();
  ortam.Yaz("001\nA12\n10000000146\nK\n");
  EXPECT_EQ(AlanMetni(form, "adsoy"), "Işıl Öz");
  EXPECT_EQ(AlanMetni(form, "uyruk"), "T.C.");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.Odak(), "kod");
  EXPECT_EQ(KimlikBul(ortam.oturum, "001")->cins, 1);
  ortam.Yaz("999\n");  // identity without a card
  EXPECT_EQ(AlanMetni(form, "adsoy"), "");
  EXPECT_EQ(AlanMetni(form, "serino"), "");
  ortam.Bas(Qt::Key_F5);
  EXPECT_TRUE(KimlikBul(ortam.oturum, "999"));
  ortam.Yaz("001\n");
  ortam.Bas(Qt::Key_F7);
  EXPECT_FALSE(KartBul(ortam.oturum, "001"));
  EXPECT_EQ(AlanMetni(form, "kod"), "");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Personel Kimlik Bilgilerini Silmek İstiyormusunuz ?\n001 Işıl Öz"});
}

TEST_F(KisiEkranlari, TheReportIsReadAndNarrowed) {
  auto& form = ortam.Ac<kontfrm>();
  auto& liste = *form.findChild<dclist*>();
  const int hepsi = liste.Model().rowCount();
  EXPECT_GT(hepsi, 4);
  ortam.Bas(Qt::Key_F, Qt::ControlModifier);
  ortam.Yaz("ışıl");
  EXPECT_EQ(liste.Model().rowCount(), hepsi / 2);
  ortam.Bas(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(KisiEkranlari, AnotherCompanysPeopleAreFoundAndBrokenStoresPassedOver) {
  Oturum obur;
  obur.DataPath = ortam.oturum.DataPath;
  ASSERT_TRUE(SirketOlustur(obur, "ÖRGÜ", "a", ""));
  Sicil s;
  s.kod = "7";
  s.adi = "Işılay";
  s.girtar = Tarih(2005, 1, 1);
  ASSERT_TRUE(KartKaydet(obur, {.simdi = s}));
  std::filesystem::create_directories(ortam.oturum.DataPath + "BOZUK");
  std::ofstream(ortam.oturum.DataPath + "BOZUK/tolu.dat") << "bu bir veritabanı değil";
  auto& form = ortam.Ac<perbul>();
  auto& liste = *form.findChild<dclist*>();
  EXPECT_FALSE(liste.isEnabled());
  ortam.Yaz("IŞIL\n");
  ASSERT_EQ(liste.ListCount(), 2);
  EXPECT_TRUE(liste.TextByName(0, "firma").startsWith("ÖRGÜ"));
  EXPECT_EQ(Utf8(liste.TextByName(1, "adsoy")), "Işıl Öz");
  EXPECT_EQ(Utf8(liste.TextByName(1, "donem")), "07-2009");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

}  // namespace
}  // namespace belvani::test
