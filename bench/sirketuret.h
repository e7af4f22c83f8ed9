// Companies of any size for measuring: people of all kinds in fixed proportions, the same on every run.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "core/session/oturum.h"
#include "payroll/hazirlik/hazirlik.h"

namespace belvani::bench {

// What a measurement cannot go on without.
template <class T>
T Al(Sonuc<T> sonuc) {
  if (sonuc) return std::move(*sonuc);
  std::cerr << sonuc.KusurMetni() << '\n';
  std::exit(1);
}

// Deletes its directory when it goes.
class Sirket {
 public:
  // `kisi` people, and pay records of the `aySayisi` months before `yil`/`ay`.
  // `veri`: where it lies, else in a directory of its own.
  Sirket(int kisi, int yil, int ay, int aySayisi, const std::string& veri = {});
  ~Sirket();
  Sirket(const Sirket&) = delete;
  Sirket& operator=(const Sirket&) = delete;

  Oturum o;
  Kosullar kosullar;

 private:
  std::string dizin_;
};

Sicil OrnekKisi(int sira);

// Exemption rules, deductions, flags and a union, so that no rule is idle.
void TamKurallar(Kosullar& kosullar);

}  // namespace belvani::bench
