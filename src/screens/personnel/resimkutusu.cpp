#include "screens/personnel/resimkutusu.h"

#include <QContextMenuEvent>
#include <QPainter>

#include "ui/resim.h"

namespace belvani {
namespace {

constexpr QSize KutuBoyu(190, 230);
constexpr int Kenar = 6;

}  // namespace

ResimKutusu::ResimKutusu(QWidget* ust) : QFrame(ust) {
  setObjectName(QStringLiteral("kart"));
  setFixedSize(KutuBoyu);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(QStringLiteral("Fotoğraf"));
}

bool ResimKutusu::Goster(const std::string& dosya) {
  const QImage resim = ResimOku(dosya, size() * devicePixelRatioF());
  if (resim.isNull()) return false;
  resim_ = QPixmap::fromImage(resim);
  update();
  return true;
}

void ResimKutusu::Bosalt() {
  resim_ = {};
  update();
}

void ResimKutusu::paintEvent(QPaintEvent* olay) {
  QFrame::paintEvent(olay);
  QPainter boya(this);
  const QRect yer = rect().adjusted(Kenar, Kenar, -Kenar, -Kenar);
  if (Bos()) {
    boya.setPen(palette().color(QPalette::PlaceholderText));
    boya.drawText(yer, Qt::AlignCenter, QStringLiteral("Fotoğraf yok\n\nCtrl+R ile eklenir"));
  } else {
    QRect hedef(QPoint(), resim_.size().scaled(yer.size(), Qt::KeepAspectRatio));
    hedef.moveCenter(yer.center());
    boya.setRenderHint(QPainter::SmoothPixmapTransform);
    boya.drawPixmap(hedef, resim_);
  }
  if (!hasFocus()) return;
  boya.setPen(QPen(palette().color(QPalette::Highlight), 2));
  boya.setRenderHint(QPainter::Antialiasing);
  boya.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 9, 9);
}

void ResimKutusu::contextMenuEvent(QContextMenuEvent* olay) {
  const bool tustan = olay->reason() == QContextMenuEvent::Keyboard;
  ResimMenusu(this, !Bos(), Ekle, Sil)->popup(tustan ? mapToGlobal(rect().center()) : olay->globalPos());
}

void ResimKutusu::keyPressEvent(QKeyEvent* olay) {
  switch (olay->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
      focusNextChild();
      return;
    case Qt::Key_Up:
      focusPreviousChild();
      return;
    default:
      QFrame::keyPressEvent(olay);
  }
}

}  // namespace belvani
