// The number of a pay record within its month, as it is compared: an empty one counts as 1, the only one that is given.
#pragma once

#include <string_view>

namespace belvani {

// Stands in SQL wherever records of one person and month are told apart, and in the index that lets each stand once.
inline constexpr std::string_view BordroNosu = "coalesce(nullif(no, 0), 1)";

// The column that an entry of an index stands on.
constexpr std::string_view IndeksKolonu(std::string_view alan) {
  return alan == BordroNosu ? "no" : alan;
}

}  // namespace belvani
