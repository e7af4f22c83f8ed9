#include "ekran/ortam.h"
#include "screens/core/firbil.h"
#include "screens/core/kulfrm.h"

namespace belvani::test {
namespace {

TEST(Firbil, ShowsTheRateAndSavesTheSession) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<firbil>();
  EXPECT_EQ(ortam.Odak(), "unvan");
  ortam.Yaz("Işıl Örgü Ltd.\n");
  EXPECT_EQ(ortam.Odak(), "sektor");
  form.Denetim("sinif").Odak()->setFocus();
  ortam.Yaz("7");  // class 7 in the list
  form.Denetim("tehlike").Odak()->setFocus();
  ortam.Yaz("Ü");
  form.Denetim("kanun").Odak()->setFocus();
  ortam.Yaz("506");
  ortam.Bas(Qt::Key_F5);

  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(ortam.oturum.unvan, "Işıl Örgü Ltd.");
  EXPECT_EQ(ortam.gosterici.baslikDegisimi, 1);
  EXPECT_FALSE(form.isVisible());
  const Firma firma = FirmaOku(ortam.oturum);
  EXPECT_EQ(firma.kanun, "00506");
  EXPECT_EQ(firma.tehlike, 2);
  EXPECT_EQ(AlanMetni(form, "tehlikeoran"), "4.2");
}

// The class is a list index in a column of real numbers.
TEST(Firbil, SavesEveryClassAsItWasStored) {
  EkranOrtami ortam;
  for (const double sinif : {0.0, 1.0, 7.0, 11.0, 1.5, 40.0}) {
    Firma firma = FirmaOku(ortam.oturum);
    firma.sinif = Tek(sinif);
    FirmaKaydet(ortam.oturum, firma, ortam.bildirim);
    auto& form = ortam.Ac<firbil>();
    EXPECT_EQ(AlanMetni(form, "tehlikeoran"), TutarMetni(Tutar(TehlikeOrani(0, sinif).Sayi()), 1)) << sinif;
    ortam.Bas(Qt::Key_F5);
    EXPECT_EQ(FirmaOku(ortam.oturum).sinif.Sayi(), sinif);
  }
}

TEST(Kulfrm, AddsAUserByKeyboardAndShowsTheFirst) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<kulfrm>();
  EXPECT_EQ(AlanMetni(form, "ad"), "ayse");
  EXPECT_EQ(form.YaziKutusu("yeni").echoMode(), QLineEdit::Password);
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
