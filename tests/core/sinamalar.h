// Cases as rows: for (const auto& [metin, beklenen] : Sinamalar<std::string, int>{{"07", 7}, {"", 0}}) …
#pragma once

#include <tuple>
#include <vector>

namespace belvani::test {

template <class... Sutun>
using Sinamalar = std::vector<std::tuple<Sutun...>>;

}  // namespace belvani::test
