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
  setIcon(Simge(simge));
}

// Pictures take the text colour of the look in force.
void xButton::changeEvent(QEvent* olay) {
  if (olay->type() == QEvent::PaletteChange && !simge_.isEmpty()) setIcon(Simge(simge_));
  QPushButton::changeEvent(olay);
}

void xButton::keyPressEvent(QKeyEvent* olay) {
  if (olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter)
    click();
  else
    QPushButton::keyPressEvent(olay);
}

}  // namespace belvani
