// belvani: the desktop program.
//   belvani [DATA_PATH]
#include <clocale>

#include "app/program.h"

int main(int argc, char** argv) {
  belvani::MasaustuUygulamasi uygulama(argc, argv);
  // Numbers in files are written with a point whatever the computer's locale says.
  std::setlocale(LC_NUMERIC, "C");
  return belvani::ProgramiYurut(uygulama);
}
