// The paths of the installation: where the program's files lie, and where the companies are. They are settings of the
// machine; a running session keeps its old ones.
#pragma once

#include <string_view>

#include "core/bildirim.h"

namespace belvani {

// Records both paths, each with a separator at its end, and says that the program must be started anew. False: an empty
// path or a failed write was told, and the screen stays.
bool YapiAyariKaydet(std::string_view prgPath, std::string_view dataPath, Bildirim& bildirim);

}  // namespace belvani
