// The first day: from an empty data path to the first saved pay record, by keys alone.
#include <QMenuBar>

#include "app/anaortam.h"
#include "core/ayarlar.h"
#include "core/store/satirlar.h"
#include "payroll/hazirlik/hazirlik.h"
#include "personnel/aile.h"
#include "screens/core/startfrm.h"

namespace belvani::test {
namespace {

struct IlkGun : AnaOrtam {
  // As the program stands before the login on a computer that has never seen it.
  IlkGun() {
    pencere.reset();
    gostericisi.pencere = nullptr;
    parametreler.yasal = {};
    oturum.DataPath = dizin.Yol() + "yeni/";
    EXPECT_TRUE(KullaniciAyariYaz("lastfirm", "") && KullaniciAyariYaz("lastuser", "BELVANI"));
  }
  // Alt and the letter of the menu, then the letter of the entry.
  void MenudenAc(const char* menu, const char* giris) {
    const auto bas = [](QWidget* hedef, const QList<QAction*>& girisler, const char* baslik, Qt::KeyboardModifier alt) {
      for (const QAction* g : girisler) {
        if (QString(g->text()).remove('&') != QString::fromUtf8(baslik)) continue;
        const QChar harf = g->text()[g->text().indexOf('&') + 1];
        QTest::sendKeyEvent(QTest::Click, hedef, Qt::Key(harf.toUpper().unicode()), QString(harf), alt);
      }
    };
    bas(QApplication::focusWidget(), pencere->menuBar()->actions(), menu, Qt::AltModifier);
    auto* acilan = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (acilan == nullptr) throw std::runtime_error(menu);
    bas(acilan, acilan->actions(), giris, Qt::NoModifier);
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(nullptr);  // as a window manager does when a menu has closed
    QApplication::setActiveWindow(pencere.get());
    if (Onde<Form>() == nullptr || QApplication::focusWidget() == nullptr) throw std::runtime_error(giris);
  }
  // With Enter to the field, as a user goes.
  void AlanaGit(const char* ad) {
    for (int adim = 0; adim < 60 && Odak() != ad; ++adim) Yaz("\n");
    if (Odak() != ad) throw std::runtime_error(ad);
  }
  void DugmeyeBas(const char* metin) {
    for (int adim = 0; adim < 60; ++adim) {
      const auto* dugme = qobject_cast<QPushButton*>(QApplication::focusWidget());
      if (dugme != nullptr && dugme->text() == QString::fromUtf8(metin)) return Bas(Qt::Key_Space);
      Bas(Qt::Key_Tab);
    }
    throw std::runtime_error(metin);
  }
};

TEST(IlkBordro, FromAnEmptyDataPathByKeysAlone) {
  IlkGun o;
  EkranOrtami::ModaldaYap([&] {
    EXPECT_EQ(o.Odak(), "ComboBox1");
    o.Yaz("dokuma\nÇağlar\nşifre\n");
  });
  ASSERT_EQ(GirisYap(o.baglam), GirisSonucu::Girildi);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Soru: Şirket Bulunamadı\nYeni Şirket Açılacak ?"});
  o.parametreler.YasalYukle(o.oturum.DataPath);
  ASSERT_TRUE(o.parametreler.firma.Yukle());
  o.Yeniden();
  EXPECT_EQ(o.bildirim.Al(), Iletiler{});

  o.MenudenAc("Firma", "Firma Bilgileri");
  o.Yaz("Işıl Dokuma Ltd.");
  o.AlanaGit("firmaay");
  o.Yaz("Tem\n2009\n");
  o.AlanaGit("issaati");
  o.Yaz("7.5");
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{});
  EXPECT_EQ(o.oturum.firma.firmayil * 100 + o.oturum.firma.firmaay, 200907);
  EXPECT_TRUE(o.pencere->windowTitle().contains("Işıl Dokuma Ltd.")) << o.pencere->windowTitle().toStdString();

  for (const char* giris : {"Yasal Oranlar", "Gelir Vergisi Tablosu", "A.G.İ. Parametresi", "Hesap Türleri"}) {
    o.MenudenAc("Parametreler", giris);
    o.DugmeyeBas("Parametre İndir");
    EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Parametre İndirildi.."}) << giris;
    o.Bas(Qt::Key_Escape);
    ASSERT_EQ(o.Onde<Form>(), nullptr) << giris;
  }
  o.MenudenAc("Parametreler", "Şablon Puantaj");
  o.Yaz("25\n5\n");
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{});

  o.MenudenAc("Özlük", "Personel Kartları");
  o.Yaz("001\nIşıl\nÖzdemir\n");
  o.AlanaGit("ucret");
  o.Yaz("1250.50");
  o.AlanaGit("agi");
  o.Yaz(" \n");
  o.AlanaGit("girtar");
  o.Yaz("01032007");
  o.Bas(Qt::Key_F5);
  o.Bas(Qt::Key_Escape);
  o.MenudenAc("Özlük", "Eş ve Çocuk Bilgileri");
  o.Yaz("001\n");
  o.Bas(Qt::Key_Insert);
  o.Yaz("10000000146\nGökçe\nÖzdemir\n\n\n05052005\n\n\n\n");
  o.Bas(Qt::Key_Escape);
  o.Bas(Qt::Key_Escape);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{});
  ASSERT_EQ(o.Onde<Form>(), nullptr);
  ASSERT_EQ(AileOku(o.oturum, "001").size(), 1u);
  EXPECT_EQ(AileOku(o.oturum, "001")[0].adi, "Gökçe");

  o.MenudenAc("Bordro", "Bordro Hazırlık");
  o.Yaz("001\n");
  for (int adim = 0; adim < 40 && o.bildirim.iletiler.empty(); ++adim) o.Yaz("\n");
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Bordro Hazırlık Sona Erdi"});
  Motor& motor = o.oturum.depo.db.IcMotor();
  const auto elle = KayitlariOku<Brd>(motor, "");
  ASSERT_EQ(elle.size(), 1u);

  // The mass run on the same person, with nothing of the session but the open store.
  ASSERT_TRUE(BordroSil(o.oturum, 2009, 7));
  const auto yasal = YasalParametreleriAl(o.oturum.DataPath);
  ASSERT_TRUE(yasal);
  const auto kosullar = KosullariYukle(o.oturum, *yasal, 2009, 7);
  ASSERT_TRUE(kosullar);
  ASSERT_TRUE(TopluHazirla(o.oturum, *kosullar));
  auto toplu = KayitlariOku<Brd>(motor, "");
  ASSERT_EQ(toplu.size(), 1u);
  toplu[0].oto = elle[0].oto;
  Brd::HerKolon([&](const auto& kolon) { EXPECT_EQ(elle[0].*kolon.uye, toplu[0].*kolon.uye) << kolon.ad; });
  EXPECT_EQ(elle[0].ng, 25);
  EXPECT_EQ(elle[0].brutkaz, Tutar(1250.5));
  EXPECT_GT(elle[0].ogv, Tutar());
}

}  // namespace
}  // namespace belvani::test
