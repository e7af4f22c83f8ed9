// The registry of papers: one row for each that has a screen and a command of its own.
#pragma once

#include <span>

#include "documents/belgetanimi.h"

namespace belvani {

// In the order of their menu.
std::span<const BelgeTanimi> Belgeler();

// The paper of a screen; null when there is none.
const BelgeTanimi* BelgeBul(std::string_view ekran);

}  // namespace belvani
