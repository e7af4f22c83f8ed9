#include "ekran/ortam.h"
#include "screens/core/firbil.h"
#include "screens/core/kulfrm.h"
#include "screens/payroll/brdhazir.h"
#include "screens/personnel/perkart.h"

namespace belvani::test {
namespace {

TEST(Firbil, ShowsTheRateAndSavesTheSession) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<firbil>(ortam.parametreler);
  EXPECT_EQ(ortam.Odak(), "unvan");
  ortam.Yaz("Işıl Örgü Ltd.\n");
  EXPECT_EQ(ortam.Odak(), "sektor");
  AlanBul(form, "sinif").Odak()->setFocus();
  ortam.Yaz("7");  // class 7 in the list
  AlanBul(form, "tehlike").Odak()->setFocus();
  ortam.Yaz("Ü");
  AlanBul(form, "kanun").Odak()->setFocus();
  ortam.Yaz("506");
  ortam.Bas(Qt::Key_F5);

  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(ortam.oturum.firma.unvan, "Işıl Örgü Ltd.");
  EXPECT_FALSE(form.isVisible());
  const Firma firma = FirmaDuzenle(ortam.oturum).simdi;
  EXPECT_EQ(firma.kanun, "00506");
  EXPECT_EQ(firma.tehlike, 2);
  EXPECT_EQ(AlanMetni(form, "tehlikeoran"), "4.2");
}

TEST(Firbil, StaysOpenWhileAnotherUsersChangeIsLookedAt) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<firbil>(ortam.parametreler);
  ortam.Yaz("Örgü");
  ortam.oturum.depo.db.IcMotor().Calistir("update firma set unvan = 'Dokuma', verda = 'Konak'");
  ortam.ModaldaYap([&] { ortam.Bas(Qt::Key_Escape); });
  ortam.Bas(Qt::Key_F5);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(FirmaDuzenle(ortam.oturum).simdi.unvan + AlanMetni(form, "unvan"), "DokumaÖrgü");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

// The class is a list index in a column of real numbers.
TEST(Firbil, SavesEveryClassAsItWasStored) {
  EkranOrtami ortam;
  for (const double sinif : {0.0, 1.0, 7.0, 11.0, 1.5, 40.0}) {
    auto firma = FirmaDuzenle(ortam.oturum);
    firma.simdi.sinif = Tek(sinif);
    ASSERT_TRUE(ortam.parametreler.firma.KartKaydet(firma));
    auto& form = ortam.Ac<firbil>(ortam.parametreler);
    EXPECT_EQ(AlanMetni(form, "tehlikeoran"), TutarMetni(Tutar(TehlikeOrani(0, sinif).Sayi()), 1)) << sinif;
    ortam.Bas(Qt::Key_F5);
    EXPECT_EQ(FirmaDuzenle(ortam.oturum).simdi.sinif.Sayi(), sinif);
  }
}

// What pays wrongly when it is lost: no year, or no decimals, where a digit was deleted.
TEST(Firbil, AnEmptiedYearIsRefusedAndDecimalsCannotBeEmptied) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<firbil>(ortam.parametreler);
  for (const char* yil : {"", "0", "209"}) {
    AlanBul(form, "firmayil").Odak()->setFocus();
    YaziBul(form, "firmayil").selectAll();
    ortam.Bas(Qt::Key_Delete);
    ortam.Yaz(yil);
    ortam.Bas(Qt::Key_F5);
    EXPECT_TRUE(form.isVisible()) << yil;
    EXPECT_EQ(ortam.bildirim.Al().size(), 1u) << yil;
    EXPECT_EQ(ortam.Odak(), "firmayil");
  }
  ortam.Bas(Qt::Key_Delete);
  ortam.Yaz("2009");
  AlanBul(form, "paraonda").Odak()->setFocus();
  for (const auto tus : {Qt::Key_Delete, Qt::Key_Backspace}) ortam.Bas(tus);
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  const Firma firma = FirmaDuzenle(ortam.oturum).simdi;
  EXPECT_EQ(firma.firmayil * 10 + firma.paraonda, 20'092);
}

// What is saved here holds at once for every screen that is open, but for the month it was opened for.
TEST(Firbil, OpenScreensSeeTheNewCard) {
  EkranOrtami ortam;
  auto& kart = ortam.Ac<perkart>(ortam.parametreler);
  YaziBul(kart, "ucret").DegerKoy(Tutar(1250.5));
  auto& bordro = ortam.Ac<brdhazir>(ortam.parametreler);
  auto& form = ortam.Ac<firbil>(ortam.parametreler);
  YaziBul(form, "ondeger").DegerKoy(std::string("Memur"));
  AlanBul(form, "paraonda").Koy(std::int64_t(0));
  AlanBul(form, "firmaay").Koy(std::int64_t(8));
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_NE(KazancGrupYukle(ortam.parametreler.firma.Parametreler(), "Memur"), KazancBayraklari{});
  EXPECT_EQ(ortam.parametreler.firma.Parametreler().varsayilan,
            KazancGrupYukle(ortam.parametreler.firma.Parametreler(), "Memur"));
  EXPECT_EQ(AlanMetni(kart, "ucret"), "1,251") << "an amount shows the decimals of the books as they are now";
  EXPECT_EQ(TutarDegeri(AlanBul(kart, "ucret").Oku()), Tutar(1250.5)) << "and keeps its own";
  EXPECT_EQ(bordro.Giris().Donem().ay, 7);
}

TEST(Kulfrm, AddsAUserByKeyboardAndShowsTheFirst) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<kulfrm>();
  EXPECT_EQ(AlanMetni(form, "ad"), "ayse");
  EXPECT_EQ(YaziBul(form, "yeni").echoMode(), QLineEdit::Password);
  ortam.Yaz("veli\n\nabc\nabd");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(AlanMetni(form, "onay"), "abd") << "what was typed is gone after a refused save";
  ortam.Bas(Qt::Key_Backspace);
  ortam.Yaz("c");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Kullanicilar(ortam.oturum).size(), 2u);
  EXPECT_EQ(AlanMetni(form, "ad"), "ayse");
  EXPECT_EQ(ortam.Odak(), "ad");
  ortam.Bas(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace belvani::test
