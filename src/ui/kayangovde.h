// KayanGovde: the body of a screen on a small display. It is as large as what it holds wherever there is room; where
// there is not, it scrolls, and what gets the keyboard comes into view. It takes no keys: those belong to the screen.
#pragma once

#include <QScrollArea>

namespace belvani {

class KayanGovde : public QScrollArea {
 public:
  explicit KayanGovde(QWidget* ust);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* olay) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  void Goster(const QWidget& parca);
};

}  // namespace belvani
