// The lock of a place in the file system: flock on the directory itself leaves nothing behind and goes with the process
// that held it. Network file systems know no such lock of a directory; there a file in it, ".kilit", is locked, by all
// computers, from the moment that it is there.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "core/sonuc.h"

namespace belvani {

class YolKilidi;

// Null where nothing can be locked: a place that cannot be written, a file system without any locks.
Sonuc<std::unique_ptr<YolKilidi>> DiziniKilitle(const std::string& dizin, std::chrono::milliseconds enCok);

}  // namespace belvani
