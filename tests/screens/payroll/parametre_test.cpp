// Screens of the law's parameters, typed key by key.
#include <gmock/gmock.h>

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "ekran/ortam.h"
#include "screens/payroll/agifrm.h"
#include "screens/payroll/gvtablo.h"
#include "screens/payroll/heskod.h"
#include "screens/payroll/kanun.h"
#include "screens/payroll/meskod.h"
#include "screens/payroll/yyasor.h"

namespace belvani::test {
namespace {

template <class Ekran>
dclist& Liste(Ekran& form) {
  return *form.template findChild<dclist*>("liste");
}
void DugmeyeBas(Form& form, const char* metin) {
  for (auto* dugme : form.findChildren<QPushButton*>())
    if (dugme->text() == metin) return dugme->click();
  ADD_FAILURE() << "no button " << metin;
}

YasalParametreler Dosyadan(const EkranOrtami& ortam) {
  return YasalDosyalariYukle(ortam.oturum.DataPath, {}).deger;
}

TEST(Yyasor, ARateReachesTheFileTheSessionAndItsTotal) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<yyasor>(ortam.parametreler);
  EXPECT_LE(form.sizeHint().width(), 1340);
  EXPECT_LE(form.sizeHint().height(), 640);
  dclist& liste = Liste(form);
  EXPECT_EQ(ortam.Odak(), "liste");
  EXPECT_EQ(liste.ListCount(), 32);
  EXPECT_EQ(liste.TextByName(0, "top"), "14.00");
  ortam.Yaz("2.5\n");  // over the first cell, and on to the next
  EXPECT_EQ(liste.TextByName(0, "top"), "14.00") << "the row has not been left yet";
  ortam.Bas(Qt::Key_Escape);
  ortam.Bas(Qt::Key_Down);
  EXPECT_EQ(liste.TextByName(0, "top"), "16.50");
  EXPECT_EQ(liste.TextByName(0, "isz"), "1.00");

  AlanBul(form, "DamgaOran").Odak()->setFocus();
  ortam.Yaz("7.5");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  for (const YasalOranlar& oranlar : {Dosyadan(ortam).oranlar, ortam.parametreler.yasal.oranlar}) {
    EXPECT_EQ(oranlar.IsciOran[0].ana, Tek(2.5));
    EXPECT_EQ(oranlar.IsciOran[0].mal, Tek(9));
    EXPECT_EQ(oranlar.DamgaOran, Tek(7.5));
    EXPECT_EQ(oranlar.AsgariUcret, Tutar(693));
  }
  EXPECT_EQ(ortam.Odak(), "DamgaOran");
}

TEST(Yyasor, TellsThatTheRatesAreOfAnotherMonthAndFetchesTheRightOnes) {
  EkranOrtami ortam;
  YasalOranlar eski = ortam.parametreler.yasal.oranlar;
  eski.AsgariUcret = Tutar(666);
  eski.SskTaban = Tutar(666.1234);  // finer than the screen shows
  ASSERT_TRUE(YasalOranlarKaydet(ortam.oturum.DataPath, eski));
  ortam.parametreler.YasalYukle(ortam.oturum.DataPath);
  auto& form = ortam.Ac<yyasor>(ortam.parametreler);
  auto* uyari = form.findChild<QLabel*>("donemuyari");
  EXPECT_TRUE(uyari->isVisible());
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Dosyadan(ortam).oranlar.SskTaban, Tutar(666.1234)) << "saving has rounded what was not touched";

  DugmeyeBas(form, "Parametre İndir");
  EXPECT_THAT(ortam.bildirim.Al(),
              testing::ElementsAre(testing::HasSubstr("SSK Taban Matrah: 666.12 (yayımlanan 666.00)"),
                                   "Bilgi: Parametre İndirildi.."))
      << "what the user has typed is not put away unasked";
  EXPECT_EQ(AlanMetni(form, "AsgariUcret"), "693.00");
  EXPECT_FALSE(uyari->isVisible());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);

  ortam.oturum.firma.firmayil = 1999;  // nothing is shipped for it
  DugmeyeBas(form, "Parametre İndir");
  EXPECT_THAT(ortam.bildirim.Al(),
              testing::ElementsAre(testing::StartsWith("Uyarı: Parametre Bulunamadı..\nTemmuz 1999 için")));
  EXPECT_EQ(Dosyadan(ortam).oranlar.AsgariUcret, Tutar(693));
}

TEST(Gvtablo, LowerBoundsFollowAndEachModeHasItsFile) {
  EkranOrtami ortam;
  ortam.oturum.PencereTip = "GV";
  auto& gv = ortam.Ac<gvtablo>(ortam.parametreler);
  EXPECT_EQ(gv.windowTitle(), "Gelir Vergisi Tablosu");
  EXPECT_EQ(Liste(gv).TextByName(1, "alt"), "8,700");
  ortam.Yaz("9000\n\n");
  EXPECT_EQ(Liste(gv).TextByName(1, "alt"), "9,000");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Dosyadan(ortam).gv.GvLimit[0], Tutar(9000));

  auto& ozel = ortam.Ac<gvtablo>(ortam.parametreler);
  EXPECT_EQ(ozel.windowTitle(), "Özel Gider İndirimi GV Tablosu");
  ortam.Yaz("500\n8\n");
  ortam.Bas(Qt::Key_F5);
  const GvTablosu tablo = OzelGvYukle(ortam.oturum.DataPath).deger;
  EXPECT_EQ(tablo.GvLimit[0], Tutar(500));
  EXPECT_EQ(tablo.GvOran[0], Tek(8));
  EXPECT_EQ(Dosyadan(ortam).gv.GvLimit[0], Tutar(9000));
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST(Agifrm, SavesARate) {
  EkranOrtami ortam;
  ortam.Ac<agifrm>(ortam.parametreler);
  EXPECT_EQ(ortam.Odak(), "AgiKendisi");
  ortam.Yaz("55\n\n7");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.parametreler.yasal.agi.AgiKendisi, Tek(55));
  EXPECT_EQ(Dosyadan(ortam).agi.AgiCocuk12, Tek(7));
  EXPECT_EQ(Dosyadan(ortam).agi.AgiTaban, Tutar(666));
}

TEST(Heskod, ARowThatIsLeftIsSavedTrimmed) {
  EkranOrtami ortam;
  ortam.oturum.PencereTip = "edit";
  auto& form = ortam.Ac<heskod>(ortam.parametreler);
  Liste(form).HucreyeGit(33, "no");
  ortam.Yaz("34\n  Deneme Türü \n1\n");
  const HesapTuru beklenen{34, "Deneme Türü", 1};
  EXPECT_EQ(ortam.parametreler.yasal.hesapTurleri[33], beklenen);
  EXPECT_EQ(Dosyadan(ortam).hesapTurleri[33], beklenen);
  EXPECT_EQ(Dosyadan(ortam).hesapTurleri[0].ack, "Tüm Sigorta Kolları");
  ortam.Bas(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

TEST(Heskod, ANumberIsGivenOnce) {
  EkranOrtami ortam;
  ortam.oturum.PencereTip = "edit";
  auto& form = ortam.Ac<heskod>(ortam.parametreler);
  const HesapTurleri onceki = ortam.parametreler.yasal.hesapTurleri;
  Liste(form).HucreyeGit(33, "no");
  ortam.Yaz("3\nYine Üç\n1\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Hesap Türü No iki kez verilemez: 3 (3. ve 34. satır)"});
  EXPECT_EQ(ortam.parametreler.yasal.hesapTurleri, onceki);
  EXPECT_EQ(Liste(form).CurSat(), 33);
}

// Cards keep the place of their branch, and the premium flag is none of this screen's.
TEST(Meskod, ADeletedRowLeavesTheOthersWhereTheyAre) {
  EkranOrtami ortam;
  const HesapTurleri onceki = ortam.parametreler.yasal.hesapTurleri;
  auto& form = ortam.Ac<meskod>(ortam.parametreler);
  Liste(form).HucreyeGit(2, "ack");
  ortam.Yaz("\nBaşka Ad\n");
  HesapTurleri beklenen = onceki;
  beklenen[2].ack = "Başka Ad";
  EXPECT_EQ(Dosyadan(ortam).hesapTurleri, beklenen);

  Liste(form).ChngSat(1);
  ortam.bildirim.cevap = false;
  ortam.Bas(Qt::Key_Delete);
  EXPECT_EQ(Dosyadan(ortam).hesapTurleri, beklenen);
  ortam.bildirim.cevap = true;
  ortam.Bas(Qt::Key_Delete);
  const std::string soru =
      "Soru: Satır Silinecek..\nEminmisiniz ???\n" + std::to_string(onceki[1].no) + " " + onceki[1].ack;
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler({soru, soru}));
  beklenen[1] = {};
  EXPECT_EQ(Dosyadan(ortam).hesapTurleri, beklenen);
  EXPECT_EQ(Liste(form).ListCount(), 50);
}

TEST(Meskod, TheListOfProfessionsIsFetchedFromTheServerAlone) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<meskod>(ortam.parametreler);
  const auto dosya = [&] { return DosyaOku(ortam.oturum.DataPath + "meskod.dat").value_or("yok"); };
  DugmeyeBas(form, "Parametre İndir");
  EXPECT_THAT(ortam.bildirim.Al(), testing::ElementsAre(testing::StartsWith("Uyarı: Parametre Bulunamadı..\n")));
  EXPECT_EQ(dosya(), "yok");
  const std::string sunucu = ortam.dizin.Yol() + "sunucu";
  std::filesystem::create_directories(sunucu + "/download");
  ASSERT_TRUE(DosyaYaz(sunucu + "/download/meskod.txt", "2411.01"));
  ASSERT_TRUE(MakineAyariYaz("ParametreAdresi", "file://" + sunucu));
  DugmeyeBas(form, "Parametre İndir");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Parametre İndirildi.."});
  EXPECT_EQ(dosya(), "2411.01");
  ASSERT_TRUE(MakineAyariYaz("ParametreAdresi", ""));
}

TEST(Kanun, AWrongDateKeepsTheCursorAndRowsComeAndGo) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<kanun>(ortam.parametreler);
  dclist& liste = Liste(form);
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("99\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Kanun Başlangıç Tarihi Hatalı"});
  EXPECT_EQ(liste.CurSat(), 4);
  EXPECT_EQ(liste.CurrentCol(), 0);
  ortam.Bas(Qt::Key_Delete);
  ortam.Yaz("01013001\n31123001\n");
  ortam.Yaz("7\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  liste.HucreyeGit(0, "bastar");
  ortam.Bas(Qt::Key_Delete);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Satır Silinecek..\nEminmisiniz ???"});
  ortam.Bas(Qt::Key_F5);
  const Kanunlar kanunlar = Dosyadan(ortam).kanunlar;
  ASSERT_EQ(kanunlar.size(), 4u);
  EXPECT_EQ(kanunlar[0].uygulama, 2);
  EXPECT_EQ(kanunlar[3], (KanunSatiri{Tarih(3001, 1, 1), Tarih(3001, 12, 31), 7}));

  // A row with no last day cannot be left.
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("01013005\n");
  ortam.Bas(Qt::Key_Escape);
  ortam.Bas(Qt::Key_Up);
  QCoreApplication::processEvents();
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Kanun Bitiş Tarihi Hatalı"});
  EXPECT_EQ(liste.CurSat(), 4);
  EXPECT_EQ(liste.CurrentCol(), 1);
}

}  // namespace
}  // namespace belvani::test
