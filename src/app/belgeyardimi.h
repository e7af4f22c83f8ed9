// The guide's page of a paper that has none of its own in data/yardim/: told from its row in the registry, so that a
// new paper is never without one.
#pragma once

#include <QString>

#include "documents/belgetanimi.h"

namespace belvani {

QString BelgeYardimi(const BelgeTanimi& belge);

}  // namespace belvani
