// Ozetci: the digest of bytes that come piece by piece, 128 bits as 32 hexadecimal letters. It tells a damaged file
// from a whole one; it is no seal against somebody who makes both.
#pragma once

#include <memory>
#include <string>
#include <string_view>

struct XXH3_state_s;

namespace belvani {

class Ozetci {
 public:
  Ozetci();
  void Ekle(std::string_view baytlar);
  std::string Metin() const;

 private:
  struct Birak {
    void operator()(XXH3_state_s* hal) const;
  };
  std::unique_ptr<XXH3_state_s, Birak> hal_;
};

}  // namespace belvani
