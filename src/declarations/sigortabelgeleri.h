// The papers for the social-security body that have a screen and a command of their own.
#pragma once

#include <span>

#include "documents/belgetanimi.h"

namespace belvani {

std::span<const BelgeTanimi> SigortaBelgeleri();

// The row of `eksikgun`, whose screen has more to it.
const BelgeTanimi& EksikGunTanimi();

}  // namespace belvani
