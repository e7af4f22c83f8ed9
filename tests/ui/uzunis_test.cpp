// Slow work: who is kept out, what goes on, and how it ends.
#include "ui/uzunis.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QThread>
#include <QVBoxLayout>
#include <QWindow>
#include <fstream>
#include <gmock/gmock.h>

#include "core/asama.h"
#include "ekran/ortam.h"
#include "ui/bildirimkutusu.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;

// A window with a field, a button and a shortcut.
struct Pencere {
  EkranOrtami ortam;
  QWidget pencere;
  QLineEdit alan{&pencere};
  QPushButton dugme{"Başla", &pencere};
  int basilan = 0, kisayol = 0;

  Pencere() {
    auto* duzen = new QVBoxLayout(&pencere);
    duzen->addWidget(&alan);
    duzen->addStretch(1);
    duzen->addWidget(&dugme);
    dugme.setFocusPolicy(Qt::NoFocus);
    pencere.resize(600, 400);
    QObject::connect(&dugme, &QPushButton::clicked, [this] { ++basilan; });
    QObject::connect(new QShortcut(QKeyCombination(Qt::CTRL, Qt::Key_K), &pencere), &QShortcut::activated,
                     [this] { ++kisayol; });
    pencere.show();
    QApplication::setActiveWindow(&pencere);
    alan.setFocus();
    QCoreApplication::processEvents();
  }

  auto Calistir(std::function<bool(Ilerleme&)> is) { return UzunIs(ortam.ekran, "Deneniyor…", std::move(is)); }

  QWindow* Yuzey() const { return pencere.windowHandle(); }
  QPoint DugmeYeri() const { return dugme.geometry().center(); }
  QWidget* Kart() const { return pencere.findChild<QWidget*>("ilerleme"); }
  QPushButton* VazgecDugmesi() const { return Kart()->findChild<QPushButton*>(); }
  // As the user does it, through the window.
  void HerSeyeBas() {
    QTest::mouseDClick(Yuzey(), Qt::LeftButton, {}, DugmeYeri());
    QTest::mouseClick(Yuzey(), Qt::LeftButton, {}, DugmeYeri());
    QTest::keyClick(Yuzey(), Qt::Key_A);
    QTest::keyClick(Yuzey(), Qt::Key_K, Qt::ControlModifier);
  }
};

// Goes on in small steps; false when it was stopped.
bool Sur(Ilerleme& ilerleme, int milisaniye) {
  QElapsedTimer gecen;
  for (gecen.start(); gecen.elapsed() < milisaniye; QThread::msleep(2))
    if (!ilerleme.Adim(std::size_t(gecen.elapsed()), std::size_t(milisaniye))) return false;
  return true;
}

void Kuyrukla(QWidget& hedef, QEvent::Type tur) {
  QCoreApplication::postEvent(&hedef, new QMouseEvent(tur, QPointF(5, 5), hedef.mapToGlobal(QPointF(5, 5)),
                                                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
}
void Kuyrukla(QWidget& hedef, Qt::Key tus, const QString& metin) {
  QCoreApplication::postEvent(&hedef, new QKeyEvent(QEvent::KeyPress, tus, Qt::NoModifier, metin));
}

TEST(UzunIs, TheUserIsKeptOutFromTheFirstMomentAndTheWindowLives) {
  Pencere p;
  Kuyrukla(p.dugme, QEvent::MouseButtonDblClick);
  Kuyrukla(p.dugme, QEvent::MouseButtonRelease);
  Kuyrukla(p.alan, Qt::Key_A, "a");
  int zamanlayici = 0;
  QTimer::singleShot(0, [&] {
    ++zamanlayici;
    p.HerSeyeBas();
    p.alan.setText(p.alan.text());
  });
  EXPECT_EQ(p.Calistir([](Ilerleme& i) { return Sur(i, 100); }), true);
  EXPECT_EQ(zamanlayici, 1);
  EXPECT_EQ(p.basilan + p.kisayol, 0);
  EXPECT_EQ(p.alan.text(), "");

  // Work without a step keeps its user out as well.
  Kuyrukla(p.alan, Qt::Key_A, "a");
  EXPECT_EQ(p.Calistir([](Ilerleme&) { return false; }), false);
  QCoreApplication::processEvents();
  EXPECT_EQ(p.alan.text(), "");
  p.HerSeyeBas();
  EXPECT_EQ(p.basilan, 3) << "afterwards all is as it was";
  EXPECT_EQ(p.kisayol, 1);
  EXPECT_EQ(p.alan.text(), "a");
  EXPECT_TRUE(p.alan.hasFocus());
}

TEST(UzunIs, EscAndClosingAskItToStop) {
  Pencere p;
  const std::function<void()> yollar[] = {
      [&] { Kuyrukla(p.alan, Qt::Key_Escape, {}); },
      [&] { QTimer::singleShot(30, [&] { QTest::keyClick(p.Yuzey(), Qt::Key_Escape); }); },
      [&] { QTimer::singleShot(0, &p.pencere, [&] { p.pencere.close(); }); },
      [&] {
        QTimer::singleShot(0, qApp, [] {
          QEvent son(QEvent::Quit);
          QCoreApplication::sendEvent(qApp, &son);
        });
      }};
  for (const auto& yol : yollar) {
    yol();
    int soylenen = 0;
    const auto sonuc = p.Calistir([&](Ilerleme& i) {
      EXPECT_FALSE(i.Vazgecildi());
      const bool bitti = Sur(i, 5000);
      soylenen += i.Vazgecildi();
      EXPECT_FALSE(i.Adim(1, 1)) << "it stays so";
      EXPECT_FALSE(i.Kesin());
      return bitti;
    });
    EXPECT_EQ(sonuc, false);
    EXPECT_EQ(soylenen, 1);
    EXPECT_TRUE(p.pencere.isVisible());
    EXPECT_EQ(p.Calistir([](Ilerleme& i) { return Sur(i, 60); }), true) << "the next work knows nothing of it";
  }
  EXPECT_TRUE(p.pencere.close());
}

TEST(UzunIs, TheLastStageCannotBeStopped) {
  Pencere p;
  EXPECT_EQ(p.Calistir([&](Ilerleme& i) {
    i.Asama("Kaydediliyor");
    Sur(i, 450);
    EXPECT_TRUE(p.Kart() != nullptr && p.VazgecDugmesi()->isEnabled());
    EXPECT_TRUE(i.Kesin());
    EXPECT_FALSE(p.VazgecDugmesi()->isEnabled());
    QTimer::singleShot(0, &p.pencere, [&] { p.pencere.close(); });
    QTest::keyClick(p.Yuzey(), Qt::Key_Escape);
    return Sur(i, 100) && !i.Vazgecildi();
  }),
            true);
  EXPECT_TRUE(p.pencere.isVisible());
}

TEST(UzunIs, TheCardComesLateTakesTheMouseAndLeavesTheKeyboard) {
  Pencere p;
  p.Calistir([&](Ilerleme& i) { return Sur(i, 200) && p.Kart() == nullptr; });
  QPointer<QWidget> kart;
  EXPECT_EQ(p.Calistir([&](Ilerleme& i) {
    EXPECT_TRUE(Sur(i, 300));
    EXPECT_EQ(p.Kart(), nullptr);
    EXPECT_TRUE(Sur(i, 300));
    kart = p.Kart();
    EXPECT_TRUE(kart != nullptr && kart->isVisible());
    if (kart == nullptr) return true;
    EXPECT_GT(kart->findChild<QProgressBar*>()->value(), 0);
    EXPECT_TRUE(p.alan.hasFocus());
    p.HerSeyeBas();
    const QPoint vazgec = p.VazgecDugmesi()->mapTo(&p.pencere, p.VazgecDugmesi()->rect().center());
    EXPECT_TRUE(Sur(i, 50));
    QTest::mouseClick(p.Yuzey(), Qt::LeftButton, {}, vazgec);
    EXPECT_FALSE(p.VazgecDugmesi()->isEnabled());
    return Sur(i, 5000);
  }),
            false);
  EXPECT_EQ(kart, nullptr);
  EXPECT_EQ(p.basilan + p.kisayol, 0);
  EXPECT_TRUE(p.alan.hasFocus());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(UzunIs, ASecondOneIsRefusedAndAThrownOneEndsCleanly) {
  Pencere p;
  bool ikinci = false;
  std::optional<bool> ikincisi = false;
  QTimer::singleShot(0, [&] { ikincisi = p.Calistir([&](Ilerleme&) { return ikinci = true; }); });
  EXPECT_EQ(p.Calistir([](Ilerleme& i) { return Sur(i, 80); }), true);
  EXPECT_EQ(ikincisi, std::nullopt);
  EXPECT_FALSE(ikinci);

  EXPECT_THROW(p.Calistir([](Ilerleme& i) -> bool {
    Sur(i, 500);
    throw std::runtime_error("disk dolu");
  }),
               std::runtime_error);
  EXPECT_EQ(p.Kart(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  Kuyrukla(p.alan, Qt::Key_Escape, {});
  EXPECT_EQ(p.Calistir([](Ilerleme& i) {
    for (Asama asama(&i);; QThread::msleep(2)) asama.Adim();
    return true;
  }),
            std::nullopt)
      << "stopped work that is thrown out of has no result";
  p.HerSeyeBas();
  EXPECT_EQ(p.alan.text(), "a");
  EXPECT_EQ(p.Calistir([](Ilerleme& i) { return Sur(i, 10); }), true);
}

// A printer that asks for paper: the question can be answered, and answering it is not stopping the work.
TEST(UzunIs, AMessageInTheMiddleIsAnswered) {
  Pencere p;
  EkranOrtami::ModaldaYap([] {
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  EXPECT_EQ(
      p.Calistir([](Ilerleme& i) { return Sur(i, 60) && !BildirimKutusu().Soru("Kağıt takıldı mı?") && Sur(i, 60); }),
      true);
}

// The window may be destroyed while it still bears the card.
// What a screen does with the store by itself never falls into another one's work.
TEST(UzunIs, WhatWaitsForTheEndIsDoneThen) {
  Pencere p;
  int olan = 0;
  IsBitince(&p.pencere, [&] { ++olan; });
  const auto is = [&](Ilerleme& ilerleme) {
    auto giden = std::make_unique<QObject>();
    for (QObject* sahip : {static_cast<QObject*>(&p.pencere), giden.get()}) IsBitince(sahip, [&] { ++olan; });
    Sur(ilerleme, 100);
    return olan == 0;
  };
  EXPECT_EQ(p.Calistir(is), true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return olan == 2; })) << "whose owner has gone is not done";
}

TEST(UzunIs, TheWindowMayGo) {
  EkranOrtami ortam;
  auto pencere = std::make_unique<QWidget>();
  pencere->show();
  QApplication::setActiveWindow(pencere.get());
  EXPECT_TRUE(UzunIs(ortam.ekran, "Deneniyor…", [&](Ilerleme& i) {
                EXPECT_TRUE(Sur(i, 450));
                EXPECT_NE(pencere->findChild<QWidget*>("ilerleme"), nullptr);
                pencere.reset();
                return Sur(i, 100);
              }).has_value());
}

TEST(UzunIs, NothingElseTurnsTheEventLoop) {
  std::vector<std::string> cevirenler;
  for (const auto& dosya : std::filesystem::recursive_directory_iterator(KaynakYolu("src"))) {
    if (!dosya.is_regular_file()) continue;
    std::ifstream akis(dosya.path());
    const std::string metin{std::istreambuf_iterator<char>(akis), {}};
    if (metin.find("processEvents") != std::string::npos) cevirenler.push_back(dosya.path().filename());
  }
  EXPECT_THAT(cevirenler, ElementsAre("uzunis.cpp"));
}

}  // namespace
}  // namespace belvani::test
