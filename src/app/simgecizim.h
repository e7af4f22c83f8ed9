// How an icon of the desktop is drawn: a picture on a plate, its caption in two lines below.
#pragma once

#include <QStyledItemDelegate>

namespace belvani {

constexpr int SimgeHazir = Qt::UserRole;  // false: the program is not there, and the icon is drawn pale
constexpr int SimgeResmi = 32;

QSize SimgeHucresi();

// Dark or light, whichever is read better on the background.
QColor OkunurYazi(const QColor& zemin);

class SimgeCizim : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* boya, const QStyleOptionViewItem& secenek, const QModelIndex& yer) const override;
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return SimgeHucresi(); }
};

}  // namespace belvani
