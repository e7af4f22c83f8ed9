// Windows that come up one after the other: a dialog, its preview, the dialog again.
#pragma once

#include "ekran/ortam.h"

namespace belvani::test {

// Does a step in each of the windows that come up one after the other.
inline void SiraylaYap(std::vector<std::function<void()>> adimlar, int deneme = 400) {
  if (adimlar.empty()) return;
  QTimer::singleShot(5, qApp, [adimlar = std::move(adimlar), deneme] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal->findChild<Form*>() == nullptr) {
      ASSERT_GT(deneme, 0) << "no modal window came up";
      return SiraylaYap(adimlar, deneme - 1);
    }
    QApplication::setActiveWindow(modal);
    adimlar.front()();
    SiraylaYap({adimlar.begin() + 1, adimlar.end()});
  });
}

}  // namespace belvani::test
