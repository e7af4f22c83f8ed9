// Sonuc<T>: a value, or the fault that tells the user why there is none.
//
// For failures that are expected: a broken file, a refused name, a full disk. Our own faults are asserts.
#pragma once

#include <cassert>
#include <optional>
#include <utility>
#include <variant>

#include "core/kusur.h"

namespace belvani {

template <class T = std::monostate, class K = Kusur>
class [[nodiscard]] Sonuc {
 public:
  Sonuc(T deger) : icerik_(std::move(deger)) {}  // NOLINT: a value is a result
  Sonuc(K kusur) : icerik_(std::move(kusur)) {}  // NOLINT: so is a fault

  explicit operator bool() const { return icerik_.index() == 0; }
  T& operator*() { return std::get<0>(icerik_); }
  const T& operator*() const { return std::get<0>(icerik_); }
  T* operator->() { return &std::get<0>(icerik_); }
  const T* operator->() const { return &std::get<0>(icerik_); }

  // The fault and its text; only when there is no value.
  const K& Kusuru() const { return std::get<1>(icerik_); }
  K& Kusuru() { return std::get<1>(icerik_); }
  const std::string& KusurMetni() const { return std::get<1>(icerik_).metin; }

 private:
  std::variant<T, K> icerik_;
};

using Durum = Sonuc<>;
inline Durum Tamam() {
  return std::monostate{};
}

}  // namespace belvani
