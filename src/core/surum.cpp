#include "core/surum.h"

namespace belvani {

Tek ProgramVersiyonu() {
  return Tek(BELVANI_SURUM);
}

}  // namespace belvani
