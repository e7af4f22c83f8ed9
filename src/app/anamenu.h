// anamenu: the main window. Its menu is the registry of screens; screens open as windows inside it, above the desktop
// with the user's shortcuts.
#pragma once

#include <QMainWindow>
#include <QMdiArea>

#include "app/ekranlar.h"

namespace belvani {

class anamenu : public QMainWindow, public FormGosterici {
  Q_OBJECT
 public:
  explicit anamenu(EkranBaglami& ekran, ParametreDeposu& parametreler);

  // Opens the screen of a menu entry; one that is open already comes to the front.
  void Ac(const EkranKaydi& kayit);
  void Islem(MenuIslemi islem);

  void SerbestGoster(std::unique_ptr<Form> form) override;
  QWidget* ModalUst() override { return this; }
  void BaslikDegisti() override;

  // Closes every screen, from the last to the first.
  void EkranlariKapat();
  // Why the window was closed.
  bool FirmaDegissinMi() const { return firmaDegissin_; }

 Q_SIGNALS:
  void Kapandi();

 protected:
  void closeEvent(QCloseEvent* olay) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  void MenuYap();
  QMenu* AltMenu(std::string_view yol);

  EkranBaglami& ekran_;
  ParametreDeposu& parametreler_;
  QMdiArea* alan_;
  QWidget* masaustu_ = nullptr;
  bool firmaDegissin_ = false;
};

}  // namespace belvani
