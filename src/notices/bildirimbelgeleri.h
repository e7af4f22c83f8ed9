// The rows of the registry for the papers of this room.
#pragma once

#include <span>

#include "documents/belgetanimi.h"

namespace belvani {

std::span<const BelgeTanimi> BildirimBelgeleri();

}  // namespace belvani
