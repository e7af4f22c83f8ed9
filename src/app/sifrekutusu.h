// The password of a database server, asked for in a box. Nothing when its user would not say it.
#pragma once

#include <optional>
#include <string>

namespace belvani {

std::optional<std::string> SifreKutusu(const std::string& sunucu, const std::string& kullanici);

}  // namespace belvani
