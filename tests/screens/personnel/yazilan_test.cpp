// Typed work is never lost without a question, whatever leads away from it.
#include <QCloseEvent>

#include "ekran/ortam.h"
#include "personnel/kart.h"
#include "personnel/kimlik.h"
#include "screens/personnel/escofrm.h"
#include "screens/personnel/nufus.h"
#include "screens/personnel/perkart.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

const std::string Soru = "Yazılan: Ekrandaki Değişiklikler Kaydedilmedi\nPersonel Kartları, 002\nKaydedilsin mi ?";

struct Yazilan : testing::Test {
  EkranOrtami ortam;
  perkart* form = nullptr;

  void SetUp() override {
    for (const char* kod : {"001", "002", "003"}) {
      Sicil s;
      s.kod = kod;
      s.adi = std::string("Ad") + kod;
      s.girtar = Tarih(2005, 1, 1);
      ASSERT_TRUE(KartKaydet(ortam.oturum, {.simdi = s}));
    }
    form = &ortam.Ac<perkart>(ortam.parametreler);
    ortam.Yaz("002\n");
    ortam.bildirim.yazilan = YazilanKarari::Kal;
  }
  std::string Adi(const char* kod = "002") { return KartBul(ortam.oturum, kod)->adi; }
  std::string Ekranda(const char* alan) { return AlanMetni(*form, alan); }
};

struct Yol {
  const char* ad;
  std::function<void(Yazilan&)> git;
};
const Yol Yollar[] = {
    {"next", [](Yazilan& t) { t.ortam.Bas(Qt::Key_PageDown); }},
    {"previous", [](Yazilan& t) { t.ortam.Bas(Qt::Key_PageUp); }},
    {"first", [](Yazilan& t) { t.ortam.Bas(Qt::Key_Home, Qt::ControlModifier); }},
    {"last", [](Yazilan& t) { t.ortam.Bas(Qt::Key_End, Qt::ControlModifier); }},
    {"Esc", [](Yazilan& t) { t.ortam.Bas(Qt::Key_Escape); }},
    {"the window's own close", [](Yazilan& t) { t.form->close(); }},
    {"another code",
     [](Yazilan& t) {
       AlanBul(*t.form, "kod").Odak()->setFocus();
       t.ortam.Yaz("003\n");
     }},
    {"F5 under a code that was not left",
     [](Yazilan& t) {
       AlanBul(*t.form, "kod").Odak()->setFocus();
       t.ortam.Yaz("003");
       t.ortam.Bas(Qt::Key_F5);
     }},
    {"a fault list", [](Yazilan& t) { t.form->KisiyeGit("001", {}); }},
};

TEST_F(Yazilan, EveryWayAwayAsksAndStayingKeepsEverything) {
  for (const Yol& yol : Yollar) {
    AlanBul(*form, "adi").Odak()->setFocus(Qt::TabFocusReason);
    ortam.Bas(Qt::Key_A, Qt::ControlModifier);
    ortam.Yaz("Yeni");
    yol.git(*this);
    EXPECT_EQ(ortam.bildirim.Al(), Iletiler{Soru}) << yol.ad;
    EXPECT_EQ(Ekranda("kod") + " " + Ekranda("adi"), "002 Yeni") << yol.ad;
    EXPECT_TRUE(form->isVisible()) << yol.ad;
    EXPECT_EQ(Adi(), "Ad002") << yol.ad;
  }
}

TEST_F(Yazilan, SavingGoesOnFromTheSavedPersonAndARefusedSaveStays) {
  ortam.bildirim.yazilan = YazilanKarari::Kaydet;
  ortam.Yaz("Yeni");
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(Adi(), "Yeni");
  EXPECT_EQ(Ekranda("kod"), "003") << "the neighbour of the one who was saved";
  AlanBul(*form, "girtar").Odak()->setFocus(Qt::TabFocusReason);
  ortam.Bas(Qt::Key_Delete);
  ortam.bildirim.Al();
  ortam.Bas(Qt::Key_PageUp);
  const Iletiler iletiler = ortam.bildirim.Al();
  ASSERT_EQ(iletiler.size(), 2u);
  EXPECT_EQ(iletiler[1], "Bilgi: Giriş Tarihi Hatalı");
  EXPECT_EQ(Ekranda("kod") + Ekranda("girtar"), "003");
  EXPECT_EQ(ortam.Odak(), "girtar");
}

TEST_F(Yazilan, NothingIsAskedWithoutADifference) {
  ortam.Yaz("Ad002\n");  // the same again
  AlanBul(*form, "ucrettipi").Odak()->setFocus();
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(Ekranda("kod"), "003");
  ortam.oturum.YazilanSorulsun = false;
  AlanBul(*form, "adi").Odak()->setFocus(Qt::TabFocusReason);
  ortam.Yaz("Yeni");
  ortam.Bas(Qt::Key_PageUp);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{}) << "the user's wish";
  EXPECT_EQ(Ekranda("kod"), "002");
}

TEST_F(Yazilan, GivenUpWorkIsGone) {
  ortam.bildirim.yazilan = YazilanKarari::Birak;
  ortam.Yaz("Yeni");
  ortam.Bas(Qt::Key_PageDown);
  ortam.Bas(Qt::Key_PageUp);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{Soru});
  EXPECT_EQ(Ekranda("adi"), "Ad002");
  ortam.Yaz("Yeni");
  ortam.Bas(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(Adi(), "Ad002");
}

TEST_F(Yazilan, ScreensOfOnePersonBeginWithTheOneShownLast) {
  auto& kimlik = ortam.Ac<nufus>();
  EXPECT_EQ(AlanMetni(kimlik, "kod"), "002");
  EXPECT_EQ(AlanMetni(kimlik, "adsoy"), "Ad002 ");
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(AlanMetni(ortam.Ac<escofrm>(), "kod"), "003");
  ASSERT_TRUE(*KartSil(ortam.oturum, "003", ortam.bildirim) == Silme::Silindi);
  EXPECT_EQ(AlanMetni(ortam.Ac<nufus>(), "kod"), "") << "nobody has that code any more";
}

TEST_F(Yazilan, RelativesOfNobodyAreRefusedAndANameAloneMakesNoSpouse) {
  auto& aile = ortam.Ac<escofrm>();
  auto& liste = *aile.findChild<dclist*>();
  liste.setFocus();
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("\nEfe");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Utf8(liste.TextByName(0, "yakinlik")), "");
  AlanBul(aile, "kod").Odak()->setFocus();
  ortam.Yaz("999\n");
  liste.setFocus();
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("\nCan");
  ortam.bildirim.Al();
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Bu Kodda Personel Yok: 999"});
  EXPECT_EQ(Utf8(liste.TextByName(0, "adi")), "Can") << "what was typed stays";
}

}  // namespace
}  // namespace belvani::test
