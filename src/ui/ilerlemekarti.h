// The card over a window that shows how far slow work has come. It is a part of the window and takes no keyboard, so
// the focus stays where it is.
#pragma once

#include <QFrame>
#include <functional>

class QLabel;
class QProgressBar;

namespace belvani {

class xButton;

class IlerlemeKarti : public QFrame {
 public:
  IlerlemeKarti(const QString& is, QWidget* ust);

  void Asama(const QString& metin);
  void Goster(std::size_t biten, std::size_t toplam);
  // "Vazgeç" has been pressed, or cannot be any more.
  void VazgecmeyiKapat();
  void Ortala();

  std::function<void()> Vazgecildi = [] {};

 private:
  QLabel* asama_;
  QProgressBar* cubuk_;
  xButton* vazgec_;
};

}  // namespace belvani
