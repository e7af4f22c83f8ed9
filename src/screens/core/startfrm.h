// startfrm: the login, the program's first window. It opens the company that is named, or makes a new one.
//
//   Enter   next field; in the password: login          F2   list of the companies
//   Esc     ends the program
#pragma once

#include <QDialog>

#include "ui/ekran.h"
#include "ui/xbutton.h"
#include "ui/xtext.h"

class QComboBox;
class QLabel;

namespace belvani {

class startfrm : public QDialog {
 public:
  explicit startfrm(EkranBaglami& baglam);

  void reject() override;

 protected:
  void showEvent(QShowEvent* olay) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;
  void paintEvent(QPaintEvent* olay) override;
  void resizeEvent(QResizeEvent* olay) override;
  void mousePressEvent(QMouseEvent* olay) override;
  void mouseMoveEvent(QMouseEvent* olay) override;

 private:
  void Diz();
  QWidget* MarkaYap();
  QWidget* GirisAlaniYap();
  void DegerleriKoy();
  bool TusuIsle(const QObject* alan, int tus);
  void IlkBosAlanaGit();
  void SirketSec();
  bool SirketSectir(const std::string& simdiki);
  bool SirketiAc();
  bool Acildi(const Durum& durum);
  void Gir();
  std::string Sirket() const;

  EkranBaglami& baglam_;
  QComboBox* sirket_;
  xtext* kullanici_;
  xtext* sifre_;
  QLabel* aciklama_;
  xButton* tamam_;
  xButton* vazgec_;
  QPoint tutulan_;  // where the window is held while it is dragged
};

enum class GirisSonucu { Girildi, Cikis };

// Shows the login until somebody is in or wants to leave; the company is then open, or the store closed.
GirisSonucu GirisYap(EkranBaglami& baglam);

}  // namespace belvani
