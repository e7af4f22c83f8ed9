// FormYuzeyi: a drawn form whose values can be moved and changed where they stand.
//
//   Tab, Shift+Tab  next, previous value    arrow keys  move it by half a millimetre (Shift: by five)
//   Enter, F2, double click or a letter  change its text (Enter takes it, Esc gives it up)    Delete  empties it
//   drag with the mouse  moves it           Page Up, Page Down  page
#pragma once

#include <QImage>
#include <QLineEdit>
#include <QWidget>
#include <vector>

#include "printing/form/formsayfasi.h"

namespace belvani {

class FormYuzeyi : public QWidget {
 public:
  explicit FormYuzeyi(std::vector<FormSayfasi> sayfalar, QWidget* ust = nullptr);

  const std::vector<FormSayfasi>& Sayfalar() const { return sayfalar_; }
  int Sayfa() const { return sayfa_; }  // from 0
  void SayfayaGit(int sayfa);
  void Buyut(int adim);
  void Sec(int alan);  // puts the cursor on a value; -1: on none

  // Another value, or another place of it: whoever scrolls brings it into sight.
  std::function<void(const QRect& yer)> Gorunsun = [](const QRect&) {};

 protected:
  void paintEvent(QPaintEvent* olay) override;
  void mousePressEvent(QMouseEvent* olay) override;
  void mouseMoveEvent(QMouseEvent* olay) override;
  void mouseDoubleClickEvent(QMouseEvent* olay) override;
  void keyPressEvent(QKeyEvent* olay) override;
  bool focusNextPrevChild(bool ileri) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  std::vector<FormAlani>& Alanlar() { return sayfalar_[std::size_t(sayfa_)].alanlar; }
  double Olcek() const;  // pixels of a millimetre
  QRectF Yer(const FormAlani& alan) const;
  int AlanBul(QPointF nokta);
  void Tasi(double x, double y);
  void Duzenle(const QString& ilkMetin);
  void DuzenlemeyiBitir(bool alinsin);
  void Yenile();

  std::vector<FormSayfasi> sayfalar_;
  int sayfa_ = 0;
  int secili_ = -1;
  int buyukluk_ = 0;
  QImage resim_;  // of the page as it is now; null: must be drawn
  QLineEdit* duzenleyici_;
  QPointF tutulan_;  // where the mouse holds the value
};

}  // namespace belvani
