// The main window over the session of EkranOrtami, with messages and dialogs by script.
//
// Starting it anew with the same session is a restart of the program: AnaOrtam::Yeniden().
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/gosterici.h"
#include "ekran/ortam.h"

namespace belvani::test {

class AnaOrtam : public EkranOrtami {
 public:
  AnaOrtam() { Yeniden(); }
  ~AnaOrtam() { gostericisi.pencere = nullptr; }

  void Yeniden() {
    pencere.reset();
    pencere = std::make_unique<anamenu>(baglam, parametreler);
    gostericisi.pencere = pencere.get();
    pencere->show();
    QApplication::setActiveWindow(pencere.get());
    QCoreApplication::processEvents();
  }

  QMdiArea& Alan() { return *pencere->findChild<QMdiArea*>(); }
  // The screen in front.
  template <class Ekran>
  Ekran* Onde() {
    QMdiSubWindow* onde = Alan().activeSubWindow();
    return onde == nullptr ? nullptr : dynamic_cast<Ekran*>(onde->widget());
  }
  static const EkranKaydi& Kayit(std::string_view kelime) { return *std::ranges::find(Ekranlar(), kelime, GirisAdi); }
  // As a window manager does when a dialog has closed.
  void OneAl() {
    QApplication::setActiveWindow(pencere.get());
    QCoreApplication::processEvents();
  }
  // Presses an entry of the menu that the desktop has at the place.
  void MenudenSec(QPoint yer, const char* giris) {
    QMenu* menu = pencere->Masaustu().MenuYap(yer);
    for (QAction* a : menu->actions())
      if (a->text() == QString::fromUtf8(giris)) return a->trigger();
    FAIL() << "no entry " << giris;
  }
  QPoint SimgeYeri(int sira) {
    QListWidget& liste = pencere->Masaustu().Simgeler();
    return liste.mapTo(&pencere->Masaustu(), liste.visualItemRect(liste.item(sira)).center());
  }

  AnaPencereGosterici gostericisi;
  EkranBaglami baglam{oturum, bildirim, dialoglar, gostericisi, baski};
  std::unique_ptr<anamenu> pencere;
};

inline QStringList MenuBasliklari(QMenu* menu) {
  QStringList basliklar;
  for (const QAction* a : menu->actions()) basliklar += a->text();
  menu->deleteLater();
  return basliklar;
}

}  // namespace belvani::test
