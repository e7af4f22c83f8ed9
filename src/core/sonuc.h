// Sonuc<T>: a value, or the Turkish text that tells the user why there is none.
//
// For failures that are expected: a broken file, a refused name, a full disk. Our own faults are asserts.
#pragma once

#include <cassert>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace belvani {

struct Hata {
  std::string metin;
};

template <class T = std::monostate>
class [[nodiscard]] Sonuc {
 public:
  Sonuc(T deger) : icerik_(std::move(deger)) {}            // NOLINT: a value is a result
  Sonuc(belvani::Hata hata) : icerik_(std::move(hata)) {}  // NOLINT: so is a failure

  explicit operator bool() const { return icerik_.index() == 0; }
  T& operator*() { return std::get<0>(icerik_); }
  const T& operator*() const { return std::get<0>(icerik_); }
  T* operator->() { return &std::get<0>(icerik_); }
  const T* operator->() const { return &std::get<0>(icerik_); }

  // The text of the failure; only when there is no value.
  const std::string& HataMetni() const { return std::get<1>(icerik_).metin; }
  belvani::Hata Hatasi() const { return std::get<1>(icerik_); }

 private:
  std::variant<T, belvani::Hata> icerik_;
};

using Durum = Sonuc<>;
inline Durum Tamam() {
  return std::monostate{};
}

}  // namespace belvani
