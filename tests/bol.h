// A text in its parts: Bol("a,b,", ",") -> "a", "b", "".
#pragma once

#include <string>
#include <vector>

namespace belvani::test {

inline std::vector<std::string> Bol(const std::string& metin, const std::string& ayrac) {
  std::vector<std::string> parcalar;
  std::size_t bas = 0;
  for (std::size_t son; (son = metin.find(ayrac, bas)) != std::string::npos; bas = son + ayrac.size())
    parcalar.push_back(metin.substr(bas, son - bas));
  parcalar.push_back(metin.substr(bas));
  return parcalar;
}

}  // namespace belvani::test
