// What the writers of files are made of: a descriptor that closes itself, whole writes, and the words for a system call
// that failed.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/kusur.h"

namespace belvani {

class DosyaTutamagi {
 public:
  explicit DosyaTutamagi(int no = -1) : no_(no) {}
  DosyaTutamagi(DosyaTutamagi&& t) noexcept : no_(std::exchange(t.no_, -1)) {}
  DosyaTutamagi& operator=(DosyaTutamagi&& t) noexcept {
    std::swap(no_, t.no_);
    return *this;
  }
  ~DosyaTutamagi() { Kapat(); }

  int No() const { return no_; }
  bool Acik() const { return no_ >= 0; }
  // False when the system tells a failed write only now; errno says which.
  bool Kapat();

 private:
  int no_;
};

// False with errno when not every byte could be written.
bool HepsiniYaz(int no, std::string_view icerik);

// The reason of a failed system call, in Turkish where the user can do something about it: "disk dolu".
std::string SistemHatasi(int kod);
// "/srv/a.dat: dosya yazılamadı (disk dolu)"
Kusur DosyaHatasi(const std::string& yol, const char* ne, int kod);

}  // namespace belvani
