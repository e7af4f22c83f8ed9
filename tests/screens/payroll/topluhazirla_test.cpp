// The month of a whole company from the payroll screen, with an impatient user before it.
#include <QComboBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QStyleOption>
#include <QWindow>

#include "core/store/satirlar.h"
#include "ekran/ortam.h"
#include "screens/payroll/brdhazir.h"

namespace belvani::test {
namespace {

constexpr int KisiSayisi = 1500;

QPushButton& Puantaj(const Form& form) {
  for (auto* dugme : form.findChildren<QPushButton*>())
    if (dugme->text() == "Puantaj ") return *dugme;
  throw std::runtime_error("no button");
}

void FareKuyrukla(QWidget& hedef, std::initializer_list<QEvent::Type> turler) {
  for (const QEvent::Type tur : turler)
    QCoreApplication::postEvent(&hedef, new QMouseEvent(tur, QPointF(5, 5), hedef.mapToGlobal(QPointF(5, 5)),
                                                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
}

struct TopluHazirlama : testing::Test {
  TopluHazirlama() {
    Motor& motor = o.oturum.depo.db.IcMotor();
    Islem islem(motor);
    KayitYazici<Sicil> yazici(motor);
    for (int i = 0; i < KisiSayisi; ++i) {
      Sicil s;
      s.kod = std::to_string(10'000 + i);
      s.ucret = Tutar(900);
      s.girtar = Tarih(2005, 1, 1);
      yazici.Ekle(s);
    }
    islem.Onayla();
    // In an area, as in the main window.
    alan.resize(1366, 728);
    alan.show();
    QApplication::setActiveWindow(&alan);
    form = new brdhazir(o.ekran, o.parametreler);
    form->setAttribute(Qt::WA_DeleteOnClose);
    pencere = alan.addSubWindow(
        form, Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    pencere->setAttribute(Qt::WA_DeleteOnClose);
    pencere->show();
    AlanBul(*form, "kod").Odak()->setFocus(Qt::TabFocusReason);
    for (auto* kutu : form->findChildren<QComboBox*>())
      if (const int sira = kutu->findText("Şablondan"); sira >= 0) kutu->setCurrentIndex(sira);
    QCoreApplication::processEvents();
  }
  std::size_t Kayitlar() { return KayitlariOku<Brd>(o.oturum.depo.db.IcMotor(), "").size(); }
  QPoint KapatmaYeri() const {
    QStyleOptionTitleBar baslik;
    baslik.initFrom(pencere);
    baslik.subControls = QStyle::SC_All;
    baslik.titleBarFlags = pencere->windowFlags();
    baslik.rect.setHeight(pencere->style()->pixelMetric(QStyle::PM_TitleBarHeight, &baslik, pencere));
    const QRect dugme =
        pencere->style()->subControlRect(QStyle::CC_TitleBar, &baslik, QStyle::SC_TitleBarCloseButton, pencere);
    return pencere->mapTo(&alan, dugme.center());
  }

  EkranOrtami o;
  QMdiArea alan;
  QPointer<brdhazir> form;
  QPointer<QMdiSubWindow> pencere;
};

TEST_F(TopluHazirlama, ADoubleClickIsOneRun) {
  FareKuyrukla(Puantaj(*form), {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease});
  QTimer::singleShot(0, form, [&] {
    Puantaj(*form).click();
    FareKuyrukla(Puantaj(*form), {QEvent::MouseButtonPress, QEvent::MouseButtonRelease});
    QTest::mouseDClick(alan.windowHandle(), Qt::LeftButton, {},
                       Puantaj(*form).mapTo(&alan, Puantaj(*form).rect().center()));
  });
  Puantaj(*form).click();
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Bordro Hazırlık Tamamlandı\n" + std::to_string(KisiSayisi) +
                                      " kişi kaydedildi, 0 kişi dönem dışı, 0 kişi netsiz"});
  EXPECT_EQ(Kayitlar(), std::size_t(KisiSayisi));
  QTest::qWait(10);
  EXPECT_EQ(form, nullptr) << "the screen has closed";
  EXPECT_EQ(o.bildirim.Al(), Iletiler{});
}

TEST_F(TopluHazirlama, GivenUpInAnyWayNothingIsSavedAndTheScreenGoesOn) {
  const std::function<void()> yollar[] = {
      [&] {
        QCoreApplication::postEvent(&YaziBul(*form, "kod"),
                                    new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
      },
      [&] { QTimer::singleShot(0, form, [&] { QTest::keyClick(alan.windowHandle(), Qt::Key_Escape); }); },
      [&] { QTimer::singleShot(0, form, [&] { pencere->close(); }); },
      [&] {
        QTimer::singleShot(0, form, [&] { QTest::mouseClick(alan.windowHandle(), Qt::LeftButton, {}, KapatmaYeri()); });
      },
      [&] { QTimer::singleShot(0, form, [&] { alan.close(); }); }};
  for (const auto& yol : yollar) {
    SCOPED_TRACE(&yol - yollar);
    yol();
    Puantaj(*form).click();
    EXPECT_EQ(o.bildirim.Al(), Iletiler{"Uyarı: Bordro hazırlık iptal edildi, hiçbir kayıt değişmedi"});
    EXPECT_EQ(Kayitlar(), 0u);
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(o.Odak(), "kod");
  }
  Puantaj(*form).click();
  EXPECT_EQ(Kayitlar(), std::size_t(KisiSayisi)) << "the next run is whole";
}

}  // namespace
}  // namespace belvani::test
