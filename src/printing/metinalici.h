// MetinAlici: takes a text piece by piece, so that a long one need not stand in memory as a whole.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace belvani {

using MetinAlici = std::function<void(std::string_view parca)>;

// The pieces that `ver` gives, as one text.
template <class Ver>
std::string MetinTopla(Ver ver) {
  std::string metin;
  ver(MetinAlici([&](std::string_view parca) { metin += parca; }));
  return metin;
}

}  // namespace belvani
