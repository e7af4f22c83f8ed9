// The line at the foot of the main window: keys on the left; company, user, period and store on the right.
#pragma once

#include <QLabel>
#include <QStatusBar>

#include "core/session/oturum.h"

namespace belvani {

class DurumCubugu : public QStatusBar {
 public:
  explicit DurumCubugu(QWidget* ust);
  void Yaz(const Oturum& o);

 private:
  QLabel* firma_;
  QLabel* kullanici_;
  QLabel* donem_;
  QLabel* depo_;
};

}  // namespace belvani
