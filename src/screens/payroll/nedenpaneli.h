// "Neden bu tutar?": the steps of the calculation that led to an amount, in words and figures.
#pragma once

#include <QTextBrowser>

#include "payroll/hesap/iz.h"

namespace belvani {

class NedenPaneli : public QTextBrowser {
 public:
  explicit NedenPaneli(QWidget* ust);

  // `alan`: stored name of the amount, or one of the screen's sums ("net", "vergiler"). `etiket`: what the screen
  // calls it. `ek`: what else there is to say of it, where another place shows another figure by rule.
  void Goster(const Iz& iz, std::string_view alan, const QString& etiket, const QString& ek = {});
  // By so many lines, downwards above zero: the panel itself takes no keyboard.
  void Kaydir(int satir);
  void Bosalt();
};

}  // namespace belvani
