#include "core/store/kayitozeti.h"

#include <bit>
#include <xxhash.h>

namespace belvani {
namespace {

// The bytes of a number are hashed as they lie in memory, and stores go from one computer to another.
static_assert(std::endian::native == std::endian::little);

std::int64_t Ozeti(const void* baytlar, std::size_t boy) {
  return std::bit_cast<std::int64_t>(XXH3_64bits(baytlar, boy));
}

}  // namespace

// The store knows no negative zero.
void KayitOzeti::SayiBagla(int, double d) {
  Ekle('s', std::bit_cast<std::int64_t>(d + 0.0));
}

void KayitOzeti::MetinBagla(int, std::string_view d) {
  Ekle('m', Ozeti(d.data(), d.size()));
}

void KayitOzeti::BaytBagla(int, const Baytlar& d) {
  Ekle('b', Ozeti(d.data(), d.size()));
}

std::int64_t KayitOzeti::Deger() const {
  const XXH64_hash_t turler = XXH3_64bits(turler_.data(), sayi_);
  return std::bit_cast<std::int64_t>(XXH3_64bits_withSeed(degerler_.data(), sayi_ * sizeof degerler_.front(), turler));
}

}  // namespace belvani
