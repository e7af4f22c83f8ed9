// A save that meets another user, and the answer to what it asks.
#pragma once

#include <QLabel>

#include "ekran/ortam.h"
#include "ui/xbutton.h"

namespace belvani::test {

// Saves the screen, and answers by that button; gives the words of the question, parted by "|".
inline std::string KaydetVe(EkranOrtami& ortam, Form& form, const char* karar) {
  std::string soru;
  EkranOrtami::ModaldaYap([&] {
    QWidget& pencere = *QApplication::activeModalWidget();
    QStringList metinler;
    for (auto* etiket : pencere.findChildren<QLabel*>()) metinler += etiket->text();
    soru = Utf8(metinler.join("|"));
    for (auto* dugme : pencere.findChildren<xButton*>()) {
      if (dugme->text() != QString::fromUtf8(karar)) continue;
      dugme->setFocus();
      ortam.Bas(Qt::Key_Space);
      return;
    }
  });
  ortam.Bas(Qt::Key_F5);
  EXPECT_NE(soru, "");
  QApplication::setActiveWindow(&form);
  return soru;
}

}  // namespace belvani::test
