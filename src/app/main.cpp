// belvani: the desktop program.
//   belvani [DATA_PATH]
#include <clocale>
#include <csignal>

#include "app/program.h"

int main(int argc, char** argv) {
  belvani::MasaustuUygulamasi uygulama(argc, argv);
  // Numbers in files are written with a point whatever the computer's locale says.
  std::setlocale(LC_NUMERIC, "C");
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is told, not died of
  return belvani::ProgramiYurut(uygulama);
}
