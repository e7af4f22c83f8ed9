// Where a path of the user's leads: link by link, as the system would, but no link is followed that may be a trap.
#pragma once

#include <string>

#include "core/sonuc.h"

namespace belvani {

struct BagSonu {
  std::string yol = {};    // without links
  int tanim = -1;          // a descriptor of this process that the path stands for (/dev/stdout)
  bool acikDosya = false;  // an open file of some process: it is written where it stands, never replaced
};

// The last name need not exist.
Sonuc<BagSonu> BagSonunuBul(const std::string& yol);

// Laid by somebody else into a directory that many share (sticky, as /tmp is): whoever writes there writes where the
// other wants.
bool BaskasininTuzagi(const std::string& yol);

}  // namespace belvani
