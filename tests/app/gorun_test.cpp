// Appearance: seen at once, taken back when not saved, and read again as it was saved.
#include "app/gorun.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>

#include "app/anaortam.h"
#include "core/dosya.h"
#include "screens/core/kulfrm.h"
#include "ui/dclist.h"
#include "ui/renk.h"
#include "ui/simge.h"
#include "ui/stil.h"

namespace belvani::test {
namespace {

struct GorunTest : testing::Test {
  ~GorunTest() override {
    SimgeSetiKoy({});
    StilKur(*qApp, AcikRenkler(), GridYazilari());
  }

  gorun& Ac() {
    ortam.pencere->Islem(MenuIslemi::Gorunum);
    return *ortam.Onde<gorun>();
  }
  static void Tikla(gorun& form, const QString& dugme) { form.findChild<QPushButton*>(dugme)->click(); }
  QColor Zemin() { return ortam.pencere->grab().toImage().pixelColor(700, 500); }
  static QColor FormRengi() { return QApplication::palette().color(QPalette::Window); }

  AnaOrtam ortam;
};

TEST_F(GorunTest, PreviewThenCancel) {
  const QColor zemin = Zemin();
  gorun& form = Ac();
  ortam.dialoglar.renk = 0x332211;
  Tikla(form, "renk0");
  EXPECT_EQ(FormRengi(), QColor(0x11, 0x22, 0x33));
  Tikla(form, "koyu");
  EXPECT_EQ(FormRengi(), RenkYap(RenkAl(KoyuRenkler(), Renk::FormArka)));
  ortam.Bas(Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(FormRengi(), RenkYap(RenkAl(AcikRenkler(), Renk::FormArka)));
  EXPECT_EQ(Zemin(), zemin);

  Tikla(Ac(), "koyu");
  ortam.pencere->EkranlariKapat();  // the program ends over an open screen
  EXPECT_EQ(FormRengi(), RenkYap(RenkAl(AcikRenkler(), Renk::FormArka)));
}

// Of the picture of a menu entry: its colour, and that of its current row.
QColor MenuRengi(const anamenu& pencere, QIcon::Mode hal) {
  const QImage resim = pencere.findChild<QAction*>("mnufirbil")->icon().pixmap(QSize(64, 64), hal).toImage();
  for (int y = 0; y < resim.height(); ++y)
    for (int x = 0; x < resim.width(); ++x)
      if (resim.pixelColor(x, y).alpha() == 255) return resim.pixelColor(x, y);
  return {};
}

TEST_F(GorunTest, ASetOfPicturesIsSeenAtOnceAndKept) {
  const auto renk = [](Renk r) { return RenkYap(RenkAl(AcikRenkler(), r)); };
  EXPECT_EQ(MenuRengi(*ortam.pencere, QIcon::Normal), renk(Renk::Yazi));
  EXPECT_EQ(MenuRengi(*ortam.pencere, QIcon::Active), renk(Renk::VurguText));
  const std::string kendi = ortam.oturum.PrgPath + "image/kendi/";
  ASSERT_TRUE(DizinYarat(kendi));
  QImage kirmizi(8, 8, QImage::Format_RGB32);
  kirmizi.fill(Qt::red);
  ASSERT_TRUE(kirmizi.save(Yazi(kendi + "firma.png")));
  const auto sec = [&](const char* set) {
    auto* setler = Ac().findChild<QComboBox*>("imagepath");
    setler->setFocus();
    ortam.Yaz(set);
    Q_EMIT setler->activated(setler->currentIndex());
  };
  sec("renkli");
  EXPECT_EQ(MenuRengi(*ortam.pencere, QIcon::Normal), renk(Renk::Vurgu));
  ortam.Bas(Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(MenuRengi(*ortam.pencere, QIcon::Normal), renk(Renk::Yazi)) << "taken back";
  sec("kendi");
  ortam.Bas(Qt::Key_F5);
  ortam.Yeniden();
  EXPECT_EQ(MenuRengi(*ortam.pencere, QIcon::Normal), QColor(Qt::red));
}

TEST_F(GorunTest, WhatIsSavedIsRead) {
  gorun& form = Ac();
  Tikla(form, "koyu");
  ortam.dialoglar.renk = 0x0000FF;
  Tikla(form, "renk" + QString::number(int(Renk::GridSecili)));
  ortam.dialoglar.font = QFont("DejaVu Serif", 17, QFont::Bold);
  Tikla(form, "gridfont");
  form.findChild<QCheckBox*>("imagekullan")->click();
  RenkTablosu beklenen = KoyuRenkler();
  beklenen[std::size_t(Renk::GridSecili)] = 0x0000FF;
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(ortam.Onde<gorun>(), nullptr);

  ortam.oturum.Renkler = {};
  RenkYukle(ortam.oturum);
  EXPECT_EQ(ortam.oturum.Renkler, beklenen);
  EXPECT_EQ(GridYazilariOku().detay, (YaziTipi{"DejaVu Serif", 17, Kalinlik::Kalin}));
  EXPECT_FALSE(ortam.oturum.ResimKullan);
  StilKur(*qApp, AcikRenkler(), GridYazilari());
  ortam.Yeniden();
  EXPECT_EQ(FormRengi(), RenkYap(RenkAl(KoyuRenkler(), Renk::FormArka)));
  EXPECT_EQ(Zemin(), RenkYap(RenkAl(KoyuRenkler(), Renk::PencereArka)));
  EXPECT_TRUE(ortam.pencere->findChild<QAction*>("mnufirbil")->icon().isNull());

  ortam.pencere->Ac(AnaOrtam::Kayit("kulfrm"));
  auto& liste = *ortam.Onde<kulfrm>()->findChild<dclist*>();
  EXPECT_EQ(liste.font().pointSize(), 17);
  EXPECT_GT(liste.rowHeight(0), liste.fontMetrics().height());
  EXPECT_EQ(liste.horizontalHeader()->font().pointSize(), 10);
  ASSERT_TRUE(GridYazilariYaz(GridYazilari()));
}

}  // namespace
}  // namespace belvani::test
