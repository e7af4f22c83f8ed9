// anamenu: the main window. Its menu is the registry of screens; screens open as windows inside it, above the desktop
// with the user's shortcuts.
//
//   Alt+letter, F10  menu        F6, Ctrl+D  desktop and back        F1  guide
//   Ctrl+Tab, Ctrl+Shift+Tab  next and previous screen               Ctrl+F4  close the screen
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <QPointer>
#include <functional>
#include <map>

#include "app/durumcubugu.h"
#include "app/masaustu.h"

namespace belvani {

class anamenu : public QMainWindow, public FormGosterici {
  Q_OBJECT
 public:
  explicit anamenu(EkranBaglami& ekran, ParametreDeposu& parametreler);
  ~anamenu() override;

  // Opens the screen of a menu entry; one that is open already comes to the front. A `parametre` goes to the screen as
  // its mode word, in place of the entry's own.
  void Ac(const EkranKaydi& kayit, std::string_view parametre = {});
  void Islem(MenuIslemi islem);
  void Calistir(const Kisayol& kisayol);
  // The desktop comes to the front with the keyboard; from there, back to the screen.
  void MasaustuneGit();

  void SerbestGoster(std::unique_ptr<Form> form) override;
  QWidget* ModalUst() override { return this; }
  void KisiyeGit(const std::string& kod, AlanTutamagi alan) override;
  // Asks once about a company whose class an earlier version may have changed (core/session/sinifbakimi.h).
  void TehlikeSinifiniSor();
  void AyaGec(Yon yon);

  Form1& Masaustu() { return *masaustu_; }
  // Closes every screen, from the last to the first; false: one stays with what was typed into it.
  bool EkranlariKapat();
  // The last thing before the window goes: every screen has closed.
  std::function<void()> Birakilirken = [] {};
  // Why the window was closed.
  bool FirmaDegissinMi() const { return firmaDegissin_; }

 Q_SIGNALS:
  void Kapandi();

 protected:
  void showEvent(QShowEvent* olay) override;
  void closeEvent(QCloseEvent* olay) override;
  void keyPressEvent(QKeyEvent* olay) override;
  void changeEvent(QEvent* olay) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  // Title, desktop, status bar and every open screen show the company as it now is.
  void FirmaDegisti();
  void GorunumuUygula();
  void MasaustuYap();
  void MenuYap();
  void TuslariBagla();
  QMenu* AltMenu(std::string_view yol);
  void SimgeleriKoy();
  void Yerlestir(QMdiSubWindow& pencere);
  bool OneGetir(std::string_view kelime, std::string_view giris = {});
  void GorunumAc();

  EkranBaglami& ekran_;
  ParametreDeposu& parametreler_;
  QMdiArea* alan_;
  QPointer<Form1> masaustu_;
  DurumCubugu* durum_;
  std::vector<std::pair<QAction*, const EkranKaydi*>> girisler_;
  std::map<QString, QPoint> yerler_;  // where each screen stood when it was closed
  bool firmaDegissin_ = false;
};

}  // namespace belvani
