// The lists of the personal-expense refund as papers of the registry (documents/belgetanimi.h).
#pragma once

#include <span>

#include "documents/belgetanimi.h"

namespace belvani {

std::span<const BelgeTanimi> OgiBelgeleri();

}  // namespace belvani
