#include "ui/xbutton.h"

#include <QEvent>
#include <QKeyEvent>

#include "ui/simge.h"

namespace belvani {

xButton::xButton(const QString& metin, const QString& simge, QWidget* ust) : QPushButton(metin, ust) {
  setAutoDefault(false);
  ButtonResim(simge);
}

void xButton::ButtonResim(const QString& simge) {
  simge_ = simge;
  SimgeyiKoy();
}

void xButton::SimgeyiKoy() {
  setIcon(SimgelerKullanilir() || text().isEmpty() ? Simge(simge_) : QIcon());
}

// Pictures take the text colour of the look in force, or go with it.
void xButton::changeEvent(QEvent* olay) {
  const bool gorunum = olay->type() == QEvent::PaletteChange || olay->type() == QEvent::StyleChange;
  if (gorunum && !simge_.isEmpty()) SimgeyiKoy();
  QPushButton::changeEvent(olay);
}

void xButton::keyPressEvent(QKeyEvent* olay) {
  if (olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter)
    click();
  else
    QPushButton::keyPressEvent(olay);
}

}  // namespace belvani
