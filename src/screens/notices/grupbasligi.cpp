#include "screens/notices/grupbasligi.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include "ui/dclist.h"
#include "ui/metin.h"

namespace belvani {

GrupBasligi::GrupBasligi(dclist& liste, int ilk, int kolonSayisi, std::span<const std::string_view> basliklar,
                         QWidget* ust)
    : QWidget(ust), liste_(liste), ilk_(ilk), kolonSayisi_(kolonSayisi) {
  for (const std::string_view baslik : basliklar) basliklar_ += Yazi(baslik).simplified();
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  connect(liste.horizontalHeader(), &QHeaderView::sectionResized, this, [this] { update(); });
  connect(liste.horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { update(); });
}

QSize GrupBasligi::sizeHint() const {
  return {100, fontMetrics().height() + 8};
}

void GrupBasligi::paintEvent(QPaintEvent*) {
  const QHeaderView& baslik = *liste_.horizontalHeader();
  const int sol = baslik.mapTo(liste_.parentWidget(), QPoint(0, 0)).x() - x();
  QPainter ressam(this);
  ressam.setPen(palette().color(QPalette::WindowText));
  for (int g = 0; g < basliklar_.size(); ++g) {
    const int ilk = ilk_ + g * kolonSayisi_;
    QRect kutu(sol + baslik.sectionViewportPosition(ilk), 0, 0, height());
    for (int k = ilk; k < ilk + kolonSayisi_; ++k) kutu.setWidth(kutu.width() + baslik.sectionSize(k));
    ressam.drawText(kutu.adjusted(2, 0, -2, 0), Qt::AlignCenter,
                    fontMetrics().elidedText(basliklar_[g], Qt::ElideRight, kutu.width() - 4));
    ressam.drawLine(kutu.left(), 2, kutu.left(), height());
  }
}

}  // namespace belvani
