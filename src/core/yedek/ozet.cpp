#include "core/yedek/ozet.h"

#include <new>
#include <xxhash.h>

namespace belvani {

void Ozetci::Birak::operator()(XXH3_state_s* hal) const {
  XXH3_freeState(hal);
}

Ozetci::Ozetci() : hal_(XXH3_createState()) {
  if (hal_ == nullptr) throw std::bad_alloc();
  XXH3_128bits_reset(hal_.get());
}

void Ozetci::Ekle(std::string_view baytlar) {
  XXH3_128bits_update(hal_.get(), baytlar.data(), baytlar.size());
}

std::string Ozetci::Metin() const {
  XXH128_canonical_t baytlar;
  XXH128_canonicalFromHash(&baytlar, XXH3_128bits_digest(hal_.get()));
  constexpr char onalti[] = "0123456789abcdef";
  std::string metin;
  for (const unsigned char b : baytlar.digest) metin.append({onalti[b >> 4], onalti[b & 15]});
  return metin;
}

}  // namespace belvani
