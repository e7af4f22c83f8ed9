// Yakala: the border at which exceptions of one kind become faults.
//
//   Sonuc<Bordro> s = Yakala<TutarTasmasi>([&] { return Hesapla(); }, [](const auto&) { return Kusur{"Tutar çok
//   büyük"}; });
//
// What the work gives is the value of the result; nothing gives a Durum, and a result stays the one it is.
#pragma once

#include <type_traits>

#include "core/sonuc.h"

namespace belvani {

template <class T>
struct IsSonucu {
  using Tur = Sonuc<T>;
  using Ariza = Kusur;
};
template <>
struct IsSonucu<void> : IsSonucu<std::monostate> {};
template <class T, class K>
struct IsSonucu<Sonuc<T, K>> {
  using Tur = Sonuc<T, K>;
  using Ariza = K;
};

// `cevir` makes the fault of the exception.
template <class Hata, class Is, class Cevir>
auto Yakala(Is&& is, Cevir&& cevir) -> typename IsSonucu<std::invoke_result_t<Is>>::Tur {
  using Gelen = std::invoke_result_t<Is>;
  try {
    if constexpr (std::is_void_v<Gelen>) {
      is();
      return std::monostate{};
    } else {
      return is();
    }
  } catch (const Hata& h) {
    return typename IsSonucu<Gelen>::Ariza(cevir(h));
  }
}

}  // namespace belvani
