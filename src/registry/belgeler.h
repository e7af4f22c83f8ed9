// The registry of papers: one row for each that has a screen and a command of its own. A room that makes papers gives
// its own rows; belgeler.cpp names the rooms.
#pragma once

#include <span>

#include "documents/belgetanimi.h"

namespace belvani {

// Room by room, in the order of their menu.
std::span<const BelgeTanimi> Belgeler();

// The paper of a screen; null when there is none.
const BelgeTanimi* BelgeBul(std::string_view ekran);

}  // namespace belvani
