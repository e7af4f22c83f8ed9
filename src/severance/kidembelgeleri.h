// The severance papers of the registry.
#pragma once

#include <span>

#include "documents/belgetanimi.h"

namespace belvani {

std::span<const BelgeTanimi> KidemBelgeleri();

}  // namespace belvani
