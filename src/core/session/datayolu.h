// The data path as it is given and kept: a directory, or the address of a database server.
#pragma once

#include <string>
#include <string_view>

#include "core/sonuc.h"

namespace belvani {

// As the session keeps it: a directory with a separator at its end, a server as its place is written. Refused are an
// address that cannot be read, one with a password in it, and one of a place below the data path.
Sonuc<std::string> DataYolu(const std::string& metin);

// As its user knows it, and as it is recorded: "/srv/belvani/", "postgresql://sunucu/belvani".
std::string DataYoluMetni(const std::string& dataPath);

}  // namespace belvani
