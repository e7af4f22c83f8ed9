// Keys that count as one.
#pragma once

#include <QKeyEvent>

namespace belvani {

inline bool EnterMi(const QKeyEvent& olay) {
  return olay.key() == Qt::Key_Return || olay.key() == Qt::Key_Enter;
}

}  // namespace belvani
