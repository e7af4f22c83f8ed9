// The window a message or a dialog stands over.
#pragma once

#include <QApplication>
#include <QWidget>

namespace belvani {

// The modal window in front, else the active one; nullptr without any. Never an open list or menu: those are
// destroyed by whoever opened them, and would take what stands over them along.
inline QWidget* OndekiPencere() {
  QWidget* pencere = QApplication::activeModalWidget();
  if (pencere == nullptr) pencere = QApplication::activeWindow();
  while (pencere != nullptr && (pencere->windowType() == Qt::Popup || pencere->windowType() == Qt::ToolTip))
    pencere = pencere->parentWidget() == nullptr ? nullptr : pencere->parentWidget()->window();
  return pencere;
}

}  // namespace belvani
