// A Bildirim for tests: keeps what it is told, and answers questions as the test has set it.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "core/bildirim.h"

namespace belvani::test {

struct Ileti {
  enum class Tur { Bilgi, Uyari, Soru } tur;
  std::string metin;

  bool operator==(const Ileti&) const = default;
  friend std::ostream& operator<<(std::ostream& o, const Ileti& i) { return o << "BUS"[int(i.tur)] << ": " << i.metin; }
};

inline Ileti Bilgi(std::string metin) { return {Ileti::Tur::Bilgi, std::move(metin)}; }
inline Ileti Uyari(std::string metin) { return {Ileti::Tur::Uyari, std::move(metin)}; }
inline Ileti Soru(std::string metin) { return {Ileti::Tur::Soru, std::move(metin)}; }

class ToplayanBildirim final : public belvani::Bildirim {
 public:
  void Bilgi(std::string_view metin) override { iletiler.push_back(test::Bilgi(std::string(metin))); }
  void Uyari(std::string_view metin) override { iletiler.push_back(test::Uyari(std::string(metin))); }
  bool Soru(std::string_view metin) override {
    iletiler.push_back(test::Soru(std::string(metin)));
    return cevap;
  }

  // What came since the last call.
  std::vector<Ileti> Al() { return std::exchange(iletiler, {}); }

  std::vector<Ileti> iletiler;
  bool cevap = true;
};

using Iletiler = std::vector<Ileti>;

}  // namespace belvani::test
