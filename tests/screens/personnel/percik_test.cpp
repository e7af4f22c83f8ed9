// Leaving, by keys.
#include "screens/personnel/percik.h"

#include "core/saat.h"
#include "core/session/sirket.h"
#include "ekran/kisiler.h"
#include "ekran/ortam.h"
#include "personnel/kart.h"
#include "screens/personnel/kaydetve.h"
#include "screens/personnel/metinbas.h"
#include "ui/dclist.h"
#include "ui/xbutton.h"

namespace belvani::test {
namespace {

struct Percik : testing::Test {
  EkranOrtami ortam;
  percik* form = nullptr;

  void SetUp() override {
    IkiKisiKaydet(ortam.oturum, "Ali", "Veli");
    form = &ortam.Ac<percik>(ortam.parametreler);
  }
  std::string Metin(std::string_view ad) { return AlanMetni(*form, ad); }
  Sicil Kart() { return KartBul(ortam.oturum, "001").value(); }
  dclist& Liste(const char* ad) { return *form->findChild<dclist*>(ad); }
  std::string Toplam(const char* kolon) { return Utf8(Liste("toplam").TextByName(0, kolon)); }
  void Dugme(const char* metin) {
    for (auto* dugme : form->findChildren<xButton*>()) {
      if (dugme->text() != QString::fromUtf8(metin)) continue;
      dugme->setFocus();
      return ortam.Bas(Qt::Key_Space);
    }
    FAIL() << metin;
  }
};

TEST_F(Percik, ChecksTellTheirWordsAndLeadToTheirFields) {
  const auto basinca = [&](const char* ileti, const char* odak) {
    ortam.Bas(Qt::Key_F5);
    EXPECT_EQ(ortam.bildirim.Al(), Iletiler{std::string("Bilgi: ") + ileti});
    EXPECT_EQ(ortam.Odak(), odak);
  };
  basinca("Giriş Tarihi Hatası", "girtar");
  AlanBul(*form, "kod").Odak()->setFocus();
  ortam.Yaz("001\n");
  EXPECT_EQ(Metin("adSoyad") + Metin("girtar"), "Ali Veli01.01.2005");
  ortam.Yaz("\n31022009\n");
  basinca("Çıkış Tarihi Hatası", "ciktar");
  ortam.Yaz("31122004\n");
  basinca("Çıkış Tarihi,Giriş Tarihinden Büyük veya Eşit Olmalı", "ciktar");
  ortam.Yaz("01012005\n");
  basinca("Çıkış Kodunu Seçmelisiniz", "cikiskodu");
  ortam.Yaz("12\n   \n");
  basinca("Çıkış Sebebini Doldurunuz", "cikissebebi");
  EXPECT_TRUE(Kart().ciktar.Bos());
  ortam.Yaz("Askerlik");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(std::tuple(Kart().ciktar, int(Kart().cikiskodu), Kart().cikissebebi),
            std::tuple(Tarih(2005, 1, 1), 12, std::string("Askerlik")));
  EXPECT_EQ(Metin("adSoyad"), "Ali Veli") << "the release is still to be printed";
  EXPECT_EQ(ortam.Odak(), "kod");
}

TEST_F(Percik, AnExitIsOverwrittenAndTakenBack) {
  for (const char* tarih : {"30062009", "31072009"}) {
    ortam.Yaz((std::string("001\n\n") + tarih + "\n04\nKapandı").c_str());
    ortam.Bas(Qt::Key_F5);
    EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  }
  EXPECT_EQ(Kart().ciktar, Tarih(2009, 7, 31));
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(Metin("adSoyad") + Metin("ciktar") + Metin("cikissebebi"), "Can Veli");
  ortam.Bas(Qt::Key_PageUp);
  EXPECT_EQ(Metin("ciktar"), "31.07.2009");
  Dugme("Çıkış Geri Al");
  EXPECT_EQ(std::tuple(Kart().ciktar, int(Kart().cikiskodu), Kart().cikissebebi),
            std::tuple(Tarih(), 0, std::string()));
  EXPECT_EQ(Metin("kod") + Metin("adSoyad"), "");
  EXPECT_EQ(ortam.Odak(), "kod");

  ortam.Yaz("777\n01012005\n");
  Dugme("Çıkış Geri Al");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(Metin("kod") + Metin("girtar"), "77701.01.2005") << "an unknown code does nothing";
}

TEST_F(Percik, AnotherUsersLeavingIsAskedAbout) {
  const auto obur = MotorAc(ortam.oturum.FirmaDizini + DepoDosyasi);
  ortam.Yaz("001\n\n30062009\n04\nKapandı");
  obur->Calistir("update sicil set ciktar = '2009-05-31', cikiskodu = 3 where kod = '001'");
  const std::string soru = KaydetVe(ortam, *form, "Bak");
  EXPECT_NE(soru.find("31.05.2009|30.06.2009"), soru.npos) << soru;
  EXPECT_NE(soru.find("03-"), soru.npos) << "a code in its words: " << soru;
  EXPECT_EQ(Kart().ciktar, Tarih(2009, 5, 31));
  KaydetVe(ortam, *form, "Onunki");
  EXPECT_EQ(Metin("ciktar") + Metin("cikissebebi"), "31.05.2009Kapandı") << "as it is stored now";
  EXPECT_EQ(Kart().cikissebebi, "Kapandı");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST_F(Percik, SumsFollowTheCellsAndGoOnThePaper) {
  const SabitGun gun(Tarih(2009, 8, 1));
  ortam.Yaz("001\n");
  AlanBul(*form, "tel").Odak()->setFocus();
  ortam.Yaz("0312\n");
  ASSERT_TRUE(Liste("odemeler").hasFocus());
  EXPECT_EQ(Toplam("brut"), "0.00");
  ortam.Yaz("1000.5\n200.25\n");  // typing opens the cell, Enter opens the next
  EXPECT_EQ(Toplam("brut") + " " + Toplam("kesinti"), "1,000.50 200.25");
  ortam.Yaz("\n\n800\n12345678\n");  // behind the last column comes the next kind of payment
  EXPECT_EQ(Toplam("brut") + " " + Toplam("odenen"), "12,346,678.50 800.00");
  Liste("odemeler").HucreyeGit(0, "brut");
  ortam.Bas(Qt::Key_Delete);
  EXPECT_EQ(Toplam("brut"), "12,345,678.00");
  Liste("odemeler").HucreyeGit(4, "odenen");
  ortam.Yaz("77.5");

  const std::string kagit = MetinBas(ortam, "İBRANAME");  // with the cell still open
  for (const std::string& parca : {std::string("Ali Veli"), std::string("0312"), std::string("12,345,678.00"),
                                   std::string("877.50"), std::string("01.08.2009")})
    EXPECT_NE(kagit.find(parca), kagit.npos) << parca;

  EXPECT_EQ(kagit.find("+--"), kagit.npos);
  QApplication::setActiveWindow(form);
  AlanBul(*form, "duzcerceve").Odak()->setFocus();
  ortam.Bas(Qt::Key_Space);
  EXPECT_NE(MetinBas(ortam, "İBRANAME").find("+--"), kagit.npos) << "for a printer without box letters";
  QApplication::setActiveWindow(form);
  AlanBul(*form, "kod").Odak()->setFocus();
  ortam.Yaz("002\n");
  EXPECT_EQ(Toplam("brut") + Toplam("odenen"), "0.000.00") << "payments are one person's";
}

// Severance and notice of the days on the screen stand in their lines, as their sheet has them, and add up.
TEST_F(Percik, BringsSeveranceAndNotice) {
  Sicil s = Kart();
  s.ucret = Tutar(1800);
  ASSERT_TRUE(KartKaydet(ortam.oturum, {.ilk = Kart(), .simdi = s}));
  ortam.oturum.depo.db.IcMotor().Calistir("update kaztan set y10 = 12");
  ortam.oturum.firma.issaati = Tek(8);
  AlanBul(*form, "kod").Odak()->setFocus();
  ortam.Yaz("001\n");
  ortam.Bas(Qt::Key_F6);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Çıkış Tarihi Hatası"});
  EXPECT_EQ(ortam.Odak(), "ciktar");
  AlanBul(*form, "girtar").Odak()->setFocus();
  ortam.Yaz("02082008\n01082009\n");
  ortam.Bas(Qt::Key_F6);
  const auto satir = [&](int no) {
    std::string metin;
    for (const char* kolon : {"brut", "kesinti", "net", "ozel", "odenen"})
      metin += Utf8(Liste("odemeler").TextByName(no, kolon)) + "|";
    return metin;
  };
  EXPECT_EQ(satir(3), "1,800.00|280.80|1,519.20||1,519.20|");
  EXPECT_EQ(satir(4), "1,800.00|10.80|1,789.20||1,789.20|");
  EXPECT_EQ(Toplam("odenen"), "3,308.40");
  EXPECT_EQ(Kart().ciktar, Tarih()) << "nothing is stored";
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

}  // namespace
}  // namespace belvani::test
