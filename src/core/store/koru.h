// Koru: work on the store and with amounts whose failures are faults. The one place where MotorHatasi and TutarTasmasi
// become values; rooms below it throw.
//
//   const Durum yazildi = Koru([&] { …; islem.Onayla(); });
//   Sonuc<int> silinen = Koru([&] { return EntparSil(motor, grup); }, "Kayıtlar silinemedi: ");
#pragma once

#include <string>
#include <string_view>

#include "core/koru.h"
#include "core/store/motor.h"
#include "core/tutar.h"

namespace belvani {

// `onek` stands before the engine's words.
template <class Is>
auto Koru(Is&& is, std::string_view onek = {}) {
  const auto kusuru = [&](const auto& hata) { return Kusur{std::string(onek) + hata.what()}; };
  return Yakala<MotorHatasi>([&] { return Yakala<TutarTasmasi>(is, kusuru); }, kusuru);
}

}  // namespace belvani
