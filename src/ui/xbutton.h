// xButton: a button with a picture.
#pragma once

#include <QPushButton>

namespace belvani {

class xButton : public QPushButton {
  Q_OBJECT
 public:
  xButton(const QString& metin, const QString& simge, QWidget* ust = nullptr);

  const QString& ButtonResim() const { return simge_; }
  void ButtonResim(const QString& simge);

 protected:
  void changeEvent(QEvent* olay) override;
  void keyPressEvent(QKeyEvent* olay) override;

 private:
  void SimgeyiKoy();

  QString simge_;
};

}  // namespace belvani
