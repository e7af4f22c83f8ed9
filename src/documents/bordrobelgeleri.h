// The papers of the month's payroll, as rows of the registry.
#pragma once

#include <span>

#include "documents/belgetanimi.h"

namespace belvani {

std::span<const BelgeTanimi> BordroBelgeleri();

}  // namespace belvani
