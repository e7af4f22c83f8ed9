// SikiSatirlar: pay records with their people, packed: a tenth of what they take as records. A slip is made of one at a
// time, so those of a large company need not stand in memory side by side.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "documents/defter.h"

namespace belvani {

class SikiSatirlar {
 public:
  void Ekle(const BordroSatiri& satir);

  std::size_t size() const { return yerler_.size(); }
  // As it was put in.
  BordroSatiri operator[](std::size_t sira) const;

 private:
  std::string baytlar_;
  std::vector<std::size_t> yerler_;  // where each begins
};

}  // namespace belvani
