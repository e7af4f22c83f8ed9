#include "core/store/gezgin.h"

#include "core/turkce.h"

namespace belvani {

int Gezgin::AlanSirasi(std::string_view alan) const {
  for (std::size_t i = 0; i < alanlar_.size(); ++i)
    if (AdEsit(alanlar_[i].ad, alan)) return int(i);
  return -1;
}

}  // namespace belvani
