// The run of the desktop program: start, login, main window; a change of company begins anew; the exit ends it.
#pragma once

#include <QApplication>

namespace belvani {

// A failure that nobody has caught is told, and the program goes on.
class MasaustuUygulamasi : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* alici, QEvent* olay) override;
};

// Returns the exit status of the process.
int ProgramiYurut(MasaustuUygulamasi& uygulama);

}  // namespace belvani
