// SiraImleci: walks what gives its values by their place, `size` and `operator[]`, each made when it is asked for.
#pragma once

#include <cstddef>

namespace belvani {

template <class Dizi>
struct SiraImleci {
  const Dizi* dizi;
  std::size_t sira;

  auto operator*() const { return (*dizi)[sira]; }
  SiraImleci& operator++() {
    ++sira;
    return *this;
  }
  bool operator==(const SiraImleci&) const = default;
};

}  // namespace belvani
