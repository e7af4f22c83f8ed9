// The main window: its menu, its windows, and the guide behind F1.
#include "app/anamenu.h"

#include <QMenuBar>
#include <QTextDocument>
#include <gmock/gmock.h>

#include "app/anaortam.h"
#include "app/belgeyardimi.h"
#include "app/menuharfi.h"
#include "app/yardim.h"
#include "core/session/firmabilgi.h"
#include "core/session/sinifbakimi.h"
#include "core/store/satirlar.h"
#include "registry/belgeler.h"
#include "screens/core/firbil.h"
#include "screens/core/kulfrm.h"
#include "screens/personnel/nufus.h"
#include "screens/personnel/percik.h"
#include "screens/personnel/perkart.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

yardim* AcikYardim() {
  for (QWidget* pencere : QApplication::topLevelWidgets())
    if (auto* y = qobject_cast<yardim*>(pencere); y != nullptr && y->isVisible()) return y;
  return nullptr;
}

void HarflerTek(const QWidget& menu, const QString& yol) {
  QSet<QKeySequence> harfler;
  for (const QAction* giris : menu.actions()) {
    const QKeySequence harf = QKeySequence::mnemonic(giris->text());
    EXPECT_FALSE(harf.isEmpty()) << Utf8(yol + giris->text());
    EXPECT_FALSE(harfler.contains(harf)) << Utf8(yol + giris->text());
    harfler.insert(harf);
    if (giris->menu() != nullptr) HarflerTek(*giris->menu(), yol + giris->text() + "/");
  }
}

TEST(Anamenu, EveryEntryIsReachedByItsOwnLetter) {
  AnaOrtam ortam;
  HarflerTek(*ortam.pencere->menuBar(), "");
  QSet<QString> adlar;
  for (const QAction* giris : ortam.pencere->findChildren<QAction*>(QRegularExpression("^mnu"))) {
    EXPECT_FALSE(adlar.contains(giris->objectName())) << Utf8(giris->objectName());
    adlar.insert(giris->objectName());
  }
  EXPECT_EQ(adlar.size(), qsizetype(Ekranlar().size()));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
  EXPECT_EQ(QApplication::activePopupWidget(), ortam.pencere->menuBar()->actions().first()->menu());
  QApplication::activePopupWidget()->close();
  EXPECT_EQ(HarfliBasliklar({"İndirimler", "ırmak", "Iğdır", "Ek İşlemler", "Ek", "E"}),
            (QStringList{"İ&ndirimler", "&ırmak", "I&ğdır", "&Ek İşlemler", "E&k", "E"}))
      << "ı and I are one key; İ is no plain key";
}

// Nothing that is seen is dead: what has no screen is not shown, nor a menu without any entry.
TEST(Anamenu, EveryEntryThatIsSeenDoesSomething) {
  AnaOrtam ortam;
  for (const EkranKaydi& kayit : Ekranlar()) {
    const auto* giris = ortam.pencere->findChild<QAction*>("mnu" + Yazi(kayit.kelime));
    EXPECT_EQ(giris->isVisible(), Acilir(kayit)) << kayit.kelime;
    EXPECT_EQ(giris->isEnabled(), giris->isVisible()) << kayit.kelime;
  }
  for (const QMenu* menu : ortam.pencere->menuBar()->findChildren<QMenu*>()) {
    const bool dolu = std::ranges::any_of(menu->actions(), [](const QAction* giris) { return giris->isVisible(); });
    EXPECT_EQ(menu->menuAction()->isVisible(), dolu) << Utf8(menu->objectName());
  }
}

TEST(Anamenu, ACompanyOfOlderDaysIsAskedOnceToLookAtItsClass) {
  AnaOrtam ortam;
  const std::string& firma = ortam.oturum.FirmaDizini;
  ortam.pencere->TehlikeSinifiniSor();
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{}) << "nothing older has touched a new company";
  ASSERT_TRUE(SinifBakimiYaz(firma, SinifBakimi::Sorulmadi));
  for (int kez = 0; kez < 2; ++kez) {
    ortam.pencere->TehlikeSinifiniSor();
    EXPECT_EQ(ortam.bildirim.Al().size(), kez == 0 ? 1u : 0u);
  }
  ASSERT_NE(ortam.Onde<firbil>(), nullptr);
  EXPECT_EQ(ortam.Odak(), "sinif");
  EXPECT_EQ(SinifBakimiOku(firma), SinifBakimi::Soruldu);
  ortam.pencere->EkranlariKapat();
  ortam.OneAl();
  ortam.pencere->Ac(AnaOrtam::Kayit("kontfrm"));
  ortam.Bas(Qt::Key_Return);  // its first row is that of the class
  ASSERT_NE(ortam.Onde<firbil>(), nullptr);
  EXPECT_EQ(ortam.Odak(), "sinif");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(SinifBakimiOku(firma), SinifBakimi::Bakildi);
}

TEST(Anamenu, AKeyTakesTheCompanyToTheNextMonthAndBack) {
  AnaOrtam o;
  o.DonemYaz(2009, 12);
  o.bildirim.cevap = false;
  QTest::keyClick(o.pencere.get(), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Soru: Şirket Dönemini Değiştirmeye Eminmisiniz ?\nŞimdiki Dönem: Aralık 2009\n"
                                      "Geçilecek Dönem: Ocak 2010"});
  EXPECT_EQ(o.oturum.firma.firmaay, 12);
  o.bildirim.cevap = true;
  QTest::keyClick(o.pencere.get(), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(FirmaDuzenle(o.oturum).simdi.firmayil, 2010);
  EXPECT_THAT(Utf8(o.pencere->windowTitle()), testing::HasSubstr("(Ocak.2010)"));
  QTest::keyClick(o.pencere.get(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(FirmaDuzenle(o.oturum).simdi.firmaay, 12);
  o.DonemYaz(1990, 1);
  o.bildirim.Al();
  QTest::keyClick(o.pencere.get(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(o.bildirim.Al().back(), "Bilgi: Dönem Yıl: 1990 ile 2100 arasında olmalı");
  EXPECT_EQ(o.oturum.firma.firmayil, 1990);
}

TEST(Anamenu, WindowsOpenInViewAndRememberTheirPlace) {
  AnaOrtam ortam;
  ortam.pencere->resize(1366, 728);
  for (const char* kelime : {"firbil", "araci", "kulfrm"}) ortam.pencere->Ac(AnaOrtam::Kayit(kelime));
  QCoreApplication::processEvents();
  for (const QMdiSubWindow* pencere : ortam.Alan().subWindowList())
    EXPECT_TRUE(ortam.Alan().viewport()->rect().contains(pencere->geometry())) << pencere->geometry().bottom();

  ASSERT_NE(ortam.Onde<kulfrm>(), nullptr);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(ortam.Onde<kulfrm>(), nullptr);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_NE(ortam.Onde<kulfrm>(), nullptr);
  ortam.Alan().activeSubWindow()->move(40, 50);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4, Qt::ControlModifier);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(ortam.Alan().subWindowList().size(), 2);
  EXPECT_NE(QApplication::focusWidget(), nullptr);
  ortam.pencere->Ac(AnaOrtam::Kayit("kulfrm"));
  EXPECT_EQ(ortam.Alan().activeSubWindow()->pos(), QPoint(40, 50));

  std::vector<std::string> kapanan;
  for (const QMdiSubWindow* pencere : ortam.Alan().subWindowList())
    QObject::connect(pencere->widget(), &QObject::destroyed,
                     [&, ad = Utf8(pencere->widget()->objectName())] { kapanan.push_back(ad); });
  ortam.pencere->EkranlariKapat();
  EXPECT_EQ(kapanan, (std::vector<std::string>{"kulfrm", "araci", "firbil"}));
  EXPECT_EQ(ortam.Odak(), "simgeler") << "the keyboard is with the desktop";
}

TEST(Anamenu, TheModeWordGoesBeforeTheScreen) {
  AnaOrtam ortam;
  std::string gorulen;
  EkranKaydi kayit = AnaOrtam::Kayit("gvtablo");
  kayit.yap = [&](const UygulamaBaglami& b) {
    gorulen = b.ekran.oturum.PencereTip;
    return std::make_unique<firbil>(b.ekran, b.parametreler);
  };
  ortam.pencere->Ac(kayit);
  EXPECT_EQ(gorulen, "GV");
  EXPECT_EQ(AnaOrtam::Kayit("heskod").pencereTip, "edit");
  ortam.pencere->Ac(AnaOrtam::Kayit("kulfrm"));
  EXPECT_EQ(ortam.oturum.PencereTip, "") << "no screen gets the word of another";
}

TEST(Anamenu, WhatTheMassRunFoundLeadsToTheCards) {
  AnaOrtam ortam;
  Motor& motor = ortam.oturum.depo.db.IcMotor();
  KayitYazici<Sicil> yazici(motor);
  Islem islem(motor);
  for (const auto& [kod, girtar] : {std::pair("001", Tarih(2005, 1, 1)), std::pair("002", Tarih())}) {
    Sicil s;
    s.kod = kod;
    s.girtar = girtar;
    s.ucret = Tutar(900);
    yazici.Ekle(s);
  }
  islem.Onayla();
  ortam.pencere->Ac(AnaOrtam::Kayit("brdhazir"));
  ortam.Bas(Qt::Key_F8);
  ortam.Yaz("Ş");
  ortam.Bas(Qt::Key_F8);
  EXPECT_THAT(ortam.bildirim.Al(), testing::ElementsAre(testing::StartsWith("Bilgi: Bordro Hazırlık Tamamlandı\n")));

  const auto* form = ortam.Onde<Form>();
  ASSERT_NE(form, nullptr);
  ASSERT_EQ(Utf8(form->Kelime()), "kusurlar");
  const auto& liste = *form->findChild<dclist*>();
  ASSERT_EQ(liste.ListCount(), 1) << "whoever went well is not there";
  QStringList hucreler;
  for (const char* ad : {"derece", "kod", "alan", "metin"}) hucreler += liste.TextByName(0, ad);
  EXPECT_EQ(hucreler, (QStringList{"Uyarı", "002", "Giriş Tarihi", "Personel Giriş Tarihi Hatalı"}));
  ortam.Bas(Qt::Key_Return);
  const auto* kart = ortam.Onde<perkart>();
  ASSERT_NE(kart, nullptr);
  EXPECT_EQ(AlanMetni(*kart, "kod"), "002");
  EXPECT_EQ(ortam.Odak(), "girtar");
  EXPECT_TRUE(form->isVisible()) << "the list stays for the next one";
}

// A fault opens the screen that its field belongs to; what is typed there is not lost without a question.
TEST(Anamenu, FaultsLeadToTheScreensOfTheirFields) {
  AnaOrtam ortam;
  Motor& motor = ortam.oturum.depo.db.IcMotor();
  for (const char* kod : {"001", "002"}) {
    Sicil kart;
    kart.kod = kod;
    kart.girtar = Tarih(2005, 1, 1);
    KayitYazici<Sicil>(motor).Ekle(kart);
    Kimlik kimlik;
    kimlik.kod = kod;
    KayitYazici<Kimlik>(motor).Ekle(kimlik);
  }
  const auto git = [&](const char* kod, AlanTutamagi alan) { ortam.pencere->KisiyeGit(kod, alan); };
  git("001", kimlik::tcno);
  ASSERT_NE(ortam.Onde<nufus>(), nullptr);
  EXPECT_EQ(ortam.Odak(), "tcno");
  ortam.Yaz("1");
  git("001", sicil::cikiskodu);
  ASSERT_NE(ortam.Onde<percik>(), nullptr);
  git("001", kimlik::baba);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{}) << "who is there already is not read again";
  EXPECT_EQ(AlanMetni(*ortam.Onde<nufus>(), "tcno"), "1");
  EXPECT_EQ(ortam.Odak(), "baba");
  const Iletiler soru{
      "Yazılan: Ekrandaki Değişiklikler Kaydedilmedi\nPersonel Kimlik Bilgileri, 001\nKaydedilsin mi ?"};
  for (const auto karar : {YazilanKarari::Kal, YazilanKarari::Birak}) {
    ortam.bildirim.yazilan = karar;
    git("002", kimlik::tcno);
    EXPECT_EQ(ortam.bildirim.Al(), soru);
    EXPECT_EQ(AlanMetni(*ortam.Onde<nufus>(), "kod"), karar == YazilanKarari::Kal ? "001" : "002");
  }
  git("001", {});
  EXPECT_NE(ortam.Onde<perkart>(), nullptr);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST(Yardim, F1OpensThePageOfTheScreen) {
  AnaOrtam ortam;
  ortam.Bas(Qt::Key_F1);
  ASSERT_NE(AcikYardim(), nullptr);
  EXPECT_EQ(AcikYardim()->Kelime(), "masaustu");
  ortam.pencere->Ac(AnaOrtam::Kayit("firbil"));
  QApplication::setActiveWindow(ortam.pencere.get());
  AlanBul(*ortam.Onde<firbil>(), "unvan").Odak()->setFocus();
  ortam.Bas(Qt::Key_F1);
  EXPECT_EQ(AcikYardim()->Kelime(), "firbil");
  EXPECT_EQ(AcikYardim()->findChild<QListWidget*>()->currentItem()->text(), "Firma Bilgileri");
  EXPECT_TRUE(AcikYardim()->findChild<QTextBrowser*>()->toPlainText().contains("Firma Bilgileri"));
  QApplication::setActiveWindow(AcikYardim());
  ortam.Bas(Qt::Key_Escape);
  EXPECT_EQ(AcikYardim(), nullptr);

  // Above a dialog it has to belong to the dialog, or it would get no keys.
  ortam.ModaldaYap([] {
    EkranOrtami::Bas(Qt::Key_F1);
    ASSERT_NE(AcikYardim(), nullptr);
    EXPECT_EQ(AcikYardim()->Kelime(), "frmAbout");
    EXPECT_EQ(AcikYardim()->parentWidget(), QApplication::activeModalWidget());
    AcikYardim()->close();
    QApplication::activeModalWidget()->close();
  });
  ortam.pencere->Islem(MenuIslemi::Hakkinda);
}

TEST(Yardim, TheSearchFindsByCaptionAndText) {
  AnaOrtam ortam;
  yardim& pencere = YardimGoster("index");
  const auto gorunenler = [&] {
    QStringList basliklar;
    const auto* dizin = pencere.findChild<QListWidget*>();
    for (int i = 0; i < dizin->count(); ++i)
      if (!dizin->item(i)->isHidden()) basliklar += dizin->item(i)->text();
    return basliklar;
  };
  EXPECT_EQ(gorunenler().mid(0, 2), (QStringList{"Kullanma Şekli", "Başlangıç"}));
  auto& aranan = *pencere.findChild<QLineEdit*>();
  aranan.setText("TEHLİKE SINIFI");
  EXPECT_TRUE(gorunenler().contains("Firma Bilgileri"));
  EXPECT_FALSE(gorunenler().contains("Kısa Yol"));
  aranan.clear();
  EXPECT_EQ(gorunenler().size(), qsizetype(YardimSayfalari().size()));
  pencere.close();
}

TEST(Yardim, EveryBuiltScreenHasItsPage) {
  std::vector<std::string> eksik;
  const auto sayfalar = YardimSayfalari();
  const auto ara = [&](std::string_view kelime) {
    if (std::ranges::find(sayfalar, Yazi(kelime), &YardimSayfasi::kelime) == sayfalar.end()) eksik.emplace_back(kelime);
  };
  for (const EkranKaydi& kayit : Ekranlar())
    if (kayit.yap != nullptr) ara(kayit.kelime);
  for (const char* kelime : {"index", "baslangic", "masaustu", "gorun", "kyol", "frmAbout", "kusurlar", "sunucu"})
    ara(kelime);
  EXPECT_EQ(eksik, std::vector<std::string>{});
}

// The page that a paper has without a file names all of its fields and where to find it.
TEST(Yardim, APaperTellsOfItself) {
  for (const BelgeTanimi& belge : Belgeler()) {
    QTextDocument sayfa;
    sayfa.setHtml(BelgeYardimi(belge));
    const QString metin = sayfa.toPlainText();
    EXPECT_TRUE(metin.contains(Yazi(belge.menu).replace('/', " > ") + " > " + Yazi(belge.menuBasligi))) << belge.ekran;
    for (const auto& sutun : belge.alanlar)
      for (const AlanGrubu& grup : sutun)
        for (const Alan& alan : grup.alanlar) EXPECT_TRUE(metin.contains(Yazi(alan.etiket))) << alan.etiket;
  }
}

}  // namespace
}  // namespace belvani::test
