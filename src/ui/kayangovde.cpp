#include "ui/kayangovde.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

namespace belvani {
namespace {

constexpr int Pay = 12;  // dots kept in sight around what has the keyboard

}  // namespace

KayanGovde::KayanGovde(QWidget* ust) : QScrollArea(ust) {
  setObjectName("govde");
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  auto* icerik = new QWidget;
  icerik->setObjectName("icerik");
  setWidget(icerik);
  icerik->installEventFilter(this);
  viewport()->setAutoFillBackground(false);
  icerik->setAutoFillBackground(false);
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* simdi) {
    if (simdi != nullptr && widget()->isAncestorOf(simdi)) Goster(*simdi);
  });
}

QSize KayanGovde::sizeHint() const {
  return widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
}

QSize KayanGovde::minimumSizeHint() const {
  return {0, std::min(sizeHint().height(), fontMetrics().height() * 6)};
}

// A part larger than the view shows its beginning.
void KayanGovde::Goster(const QWidget& parca) {
  const QRect yer(parca.mapTo(widget(), QPoint()),
                  parca.size().boundedTo(viewport()->size() - QSize(2 * Pay, 2 * Pay)));
  ensureVisible(yer.right(), yer.bottom(), Pay, Pay);
  ensureVisible(yer.left(), yer.top(), Pay, Pay);
}

void KayanGovde::keyPressEvent(QKeyEvent* olay) {
  olay->ignore();
}

// What is shown or hidden changes the size that the screen asks for.
bool KayanGovde::eventFilter(QObject* nesne, QEvent* olay) {
  if (olay->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(nesne, olay);
}

}  // namespace belvani
