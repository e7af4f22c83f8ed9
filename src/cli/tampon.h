// Tampon: what a process prints, in a file without a name: however much it is, it takes no memory, and nothing of it
// is left when the programs that hold it are gone.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/tutamak.h"

namespace belvani::cli {

class Tampon {
 public:
  Tampon();  // or KomutHatasi

  // Whoever writes to it writes at its end.
  int No() const { return dosya_.No(); }
  std::size_t Boy() const;
  // Gives the room back. Nobody may be writing, and what it held is asked for no more.
  void Bosalt() const;
  // The bytes between two places, in pieces that end with their lines.
  void Ver(std::size_t bas, std::size_t son, const std::function<void(std::string_view)>& al) const;

 private:
  DosyaTutamagi dosya_;
};

// A part of one.
struct TamponParcasi {
  std::shared_ptr<const Tampon> tampon = nullptr;
  std::size_t bas = 0, son = 0;

  std::size_t Boy() const { return son - bas; }
  void Ver(const std::function<void(std::string_view)>& al) const;
  std::string Metin() const;
};

}  // namespace belvani::cli
