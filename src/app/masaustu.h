// Form1: the desktop inside the main window, behind its screens: the company's name, a picture, and the icons of the
// user's shortcuts.
//
//   arrow keys, letters  select an icon          Insert  new shortcut        Alt+arrow  moves the icon one place
//   Enter, double click  start it                Delete  takes it away       Esc        selects none
//
// The menu of the icon, of the empty desktop or of the picture comes with the right button or the menu key.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QMenu>

#include "app/ekranlar.h"
#include "core/session/gorunum.h"
#include "core/session/kisayol.h"

namespace belvani {

class Form1 : public QWidget {
  Q_OBJECT
 public:
  Form1(EkranBaglami& ekran, QWidget* ust);

  // Reads the shortcuts; a broken file leaves the desktop empty, and why is told by KusuruBildir, once.
  void KisayollariYukle();
  void KusuruBildir();
  // Paints with these settings from now on; nothing is written.
  void GorunumKoy(const GorunumAyari& ayar);
  // After a change of company title or period.
  void BaslikYaz();
  // Gives the keyboard to the icons.
  void OdakAl();

  const std::vector<Kisayol>& Kisayollar() const { return kisayollar_; }
  QListWidget& Simgeler() { return *simgeler_; }
  // The menu at a place of the desktop. It deletes itself.
  QMenu* MenuYap(QPoint yer);

  std::function<void(const Kisayol&)> Calistirilacak = [](const Kisayol&) {};
  std::function<void(MenuIslemi)> Islem = [](MenuIslemi) {};

 protected:
  void paintEvent(QPaintEvent* olay) override;
  void resizeEvent(QResizeEvent* olay) override;
  void changeEvent(QEvent* olay) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  void SimgeleriKur();
  void Goster(std::vector<Kisayol> kisayollar, int secili);
  bool Yaz(std::vector<Kisayol> kisayollar, int secili);
  QMenu* SimgeMenusu(int sira);
  QMenu* BosMenu();
  struct MenuSatiri {
    const char* simge;
    const char* metin;
    std::function<void()> islev;
  };
  QMenu* MenuDoldur(const std::vector<MenuSatiri>& satirlar);
  void Duzenle(int sira);  // behind the last one: a new shortcut
  void Sil(int sira);
  void Tasi(int sira, int adim);
  void Diz();
  void ResimEkle();
  void ResimKaydet(const GorunumAyari& ayar);
  bool TusuIsle(const QKeyEvent& tus);
  void ResimYerlestir();
  void EtiketiGiydir();

  EkranBaglami& ekran_;
  GorunumAyari ayar_;
  std::vector<Kisayol> kisayollar_;
  std::optional<Kusur> kusur_;
  QListWidget* simgeler_;
  QLabel* etiket_;
  QImage resim_;
  QRect resimYeri_;
};

}  // namespace belvani
