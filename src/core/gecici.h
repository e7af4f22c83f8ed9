// The file beside a target in which its new content is written. Its name tells who is at it,
// ".belvani-COMPUTER-PROCESS-XXXXXX", so that what a killed program has left can be told from what another one is
// writing at this moment.
#pragma once

#include <string>

#include "core/tutamak.h"

namespace belvani {

// A new one in the directory of `hedef`, open to its owner alone; closed with errno when it cannot be made.
DosyaTutamagi GeciciAc(const std::string& hedef, std::string& gecici);

// Removes those of this computer's processes that are gone, and those of a day ago, whoever's they are. For the places
// of this program alone (data path, companies): where the user has his files nobody tidies up.
void GecicileriSupur(const std::string& dizin);

}  // namespace belvani
