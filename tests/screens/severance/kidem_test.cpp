// The screens of severance, by keys.
#include <QComboBox>
#include <QTextBrowser>
#include <gmock/gmock.h>

#include "core/dosya.h"
#include "core/store/satirlar.h"
#include "core/tables/kaztan.h"
#include "core/tables/tablolar.h"
#include "ekran/ortam.h"
#include "personnel/kart.h"
#include "screens/severance/ihbsure.h"
#include "screens/severance/kidemhes.h"
#include "screens/severance/kidempar.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

struct KidemEkrani : testing::Test {
  EkranOrtami ortam;

  void SetUp() override {
    Motor& motor = ortam.oturum.depo.db.IcMotor();
    motor.Calistir("update kaztan set y10 = 12");
    ortam.oturum.firma.issaati = Tek(7.5);
    for (const char* kod : {"001", "002"}) {
      Sicil s;
      s.kod = kod;
      s.adi = "Işıl";
      s.soyadi = "Öğütçü";
      s.ucret = Tutar(kod[2] == '1' ? 1800.0 : 3000.0);
      s.girtar = Tarih(2008, 8, 2);
      s.ciktar = Tarih(2009, 8, 1);
      ASSERT_TRUE(KartKaydet(ortam.oturum, {.simdi = s}));
    }
    ASSERT_TRUE(ortam.parametreler.firma.Yukle());
  }
  static std::string Metin(Form& form, std::string_view ad) { return AlanMetni(form, ad); }
};

TEST_F(KidemEkrani, APersonIsCalculatedAndFollowsWhatIsTyped) {
  auto& form = ortam.Ac<kidemhes>(ortam.parametreler);
  EXPECT_LE(form.sizeHint().width(), 1340);
  EXPECT_LE(form.sizeHint().height(), 640);
  ortam.Yaz("001\n");
  EXPECT_EQ(Metin(form, "adi") + " " + Metin(form, "girtar") + " " + Metin(form, "ciktar"),
            "Işıl 02.08.2008 01.08.2009");
  EXPECT_EQ(Metin(form, "AylikUcret"), "1,800.00");
  EXPECT_EQ(Metin(form, "CalismaGunu") + " " + Metin(form, "IhbarGun"), "360 30");
  EXPECT_EQ(Metin(form, "netKidem"), "1,789.20");
  EXPECT_EQ(Metin(form, "netIhbar"), "1,519.20");
  EXPECT_EQ(Metin(form, "netToplam"), "3,308.40");

  AlanBul(form, "AylikUcret").Odak()->setFocus();
  ortam.Yaz("3000\n");
  EXPECT_EQ(Metin(form, "gunlukEsas"), "78.84") << "cut at the ceiling";
  EXPECT_EQ(Metin(form, "brutIhbar"), "3,000.00");
  AlanBul(form, "IhbarGun").Odak()->setFocus();
  ortam.Yaz("10\n");
  EXPECT_EQ(Metin(form, "brutIhbar"), "1,000.00");
  AlanBul(form, "ciktar").Odak()->setFocus();
  ortam.Yaz("01082010\n");
  EXPECT_EQ(Metin(form, "CalismaGunu") + " " + Metin(form, "IhbarGun"), "720 45");
  EXPECT_EQ(Metin(form, "AylikUcret"), "3,000.00") << "what was typed stands";

  AlanBul(form, "kidemHaric").Odak()->setFocus();
  ortam.Bas(Qt::Key_Space);
  EXPECT_EQ(Metin(form, "brutKidem") + Metin(form, "netKidem"), "") << "the excluded side is blank";
  EXPECT_EQ(Metin(form, "netToplam"), Metin(form, "netIhbar"));
  AlanBul(form, "AylikUcret").Odak()->setFocus();
  ortam.Yaz("0\n");
  EXPECT_EQ(Metin(form, "netToplam") + Metin(form, "gunlukUcret"), "");
  EXPECT_EQ(Metin(form, "CalismaGunu"), "720");

  AlanBul(form, "kod").Odak()->setFocus();
  ortam.Yaz("yok\n");
  EXPECT_EQ(Metin(form, "adi") + Metin(form, "netToplam") + Metin(form, "girtar"), "");
  EXPECT_EQ(Metin(form, "kod"), "yok");
  AlanBul(form, "kod").Odak()->setFocus();
  ortam.Yaz("002\n");
  EXPECT_EQ(Metin(form, "AylikUcret"), "3,000.00");
  ortam.Bas(Qt::Key_PageUp);
  EXPECT_EQ(Metin(form, "kod") + " " + Metin(form, "netToplam"), "001 3,308.40");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST_F(KidemEkrani, AnotherHalfYearIsToldAndItsCeilingOffered) {
  auto& form = ortam.Ac<kidemhes>(ortam.parametreler);
  ortam.Yaz("002\n");
  auto& notlar = *form.findChild<QLabel*>("notlar");
  EXPECT_TRUE(notlar.isHidden());
  AlanBul(form, "ciktar").Odak()->setFocus();
  ortam.Yaz("30062009\n");
  EXPECT_FALSE(notlar.isHidden());
  EXPECT_EQ(Metin(form, "kidemTavan"), "2,365.16");
  AlanBul(form, "tavan").Odak()->setFocus();
  ortam.Bas(Qt::Key_Down);
  EXPECT_EQ(Metin(form, "kidemTavan"), "2,260.05");
  EXPECT_THAT(Utf8(notlar.text()), testing::HasSubstr("yayımlanandır: 2,260.05"));
}

// A step for each amount, where the cursor stands.
TEST_F(KidemEkrani, EveryResultIsExplained) {
  auto& form = ortam.Ac<kidemhes>(ortam.parametreler);
  ortam.Yaz("001\n");
  ortam.Bas(Qt::Key_F4);
  const auto* neden = form.findChild<QTextBrowser*>();
  EXPECT_EQ(ortam.Odak(), "netToplam");
  for (const auto& d : form.Denetimler()) {
    const auto& alan = d->Satir();
    if (!alan.ek.kapali || alan.tanim.tip != AlanTipi::Tutar) continue;
    d->Odak()->setFocus();
    QCoreApplication::processEvents();
    EXPECT_THAT(Utf8(neden->toPlainText()), testing::HasSubstr("→")) << alan.tanim.ad;
  }
}

TEST_F(KidemEkrani, ACompanyWithoutHoursIsToldAtTheOpening) {
  ortam.oturum.firma.issaati = Tek(0.5);
  ortam.Ac<kidemhes>(ortam.parametreler);
  QCoreApplication::processEvents();
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Firma Bilgilerinde İş Saati Yazılmamış"});
}

// Saved parameters reach a screen that is open.
TEST_F(KidemEkrani, ParametersAreKeptInTheirFiles) {
  auto& hesap = ortam.Ac<kidemhes>(ortam.parametreler);
  ortam.Yaz("001\n");
  auto& kidem = ortam.Ac<kidempar>(ortam.parametreler);
  EXPECT_EQ(Metin(kidem, "KidemYilGun"), "360");
  const auto secilen = [&](const char* ad) {
    return Utf8(qobject_cast<QComboBox*>(AlanBul(kidem, ad).Odak())->currentText());
  };
  EXPECT_EQ(secilen("KidemPuantajYeri"), "İhbar/Kasa Taz.");
  EXPECT_EQ(secilen("IhbarPuantajYeri"), "Kıdem Tazminatı");
  AlanBul(kidem, "KidemYilGun").Odak()->setFocus();
  ortam.Yaz("365\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(DosyaOku(ortam.oturum.FirmaDizini + "kidpar.dat"), std::string("\x6d\x01\x09\x0a", 4));
  EXPECT_TRUE(kidem.isHidden());
  EXPECT_EQ(Metin(hesap, "CalismaGunu"), "365");

  auto& ihbar = ortam.Ac<ihbsure>(ortam.parametreler);
  dclist& liste = *ihbar.findChild<dclist*>("liste");
  EXPECT_EQ(liste.ListCount(), 8);
  EXPECT_EQ(liste.TextByName(3, "ay") + " " + liste.TextByName(3, "gun"), "9,999 60");
  ortam.Yaz("7\n20\n");
  ortam.Bas(Qt::Key_F5);
  const auto baytlar = DosyaOku(ortam.oturum.FirmaDizini + "ihbsure.dat");
  ASSERT_TRUE(baytlar);
  EXPECT_EQ(baytlar->size(), 32u);
  EXPECT_EQ(baytlar->substr(0, 8), std::string("\7\0\x14\0\x12\0\x1e\0", 8));
  EXPECT_TRUE(ihbar.isHidden());
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

}  // namespace
}  // namespace belvani::test
