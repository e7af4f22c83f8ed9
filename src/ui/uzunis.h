// UzunIs: the one runner of slow work. The work runs on the program's one thread; at its steps windows are painted and
// timers run. Nothing else turns the event loop while something is being done.
//
//   const auto pdf = UzunIs(baglam, "PDF hazırlanıyor…", [&](Ilerleme& i) { return BelgePdf(belge, &i); });
//   if (!pdf) return;  // stopped, or refused: another work is running
//
// From its first moment to its last, what the user types and clicks is dropped, also what waited before it began; so
// no second command starts inside it, and nobody destroys the screen it belongs to. Esc, "Vazgeç" and closing a window
// ask it to stop, which it is told at its next step, until it has called Kesin(). The cursor is busy at once, a card
// over the window shows after a blink; the keyboard stays where it is. Messages do come through and can be answered,
// but belong behind the work wherever it can wait: no transaction may be open while one stands.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <type_traits>

#include "core/asama.h"
#include "ui/ekran.h"

namespace belvani {

namespace uzunis {
// False: refused, or stopped (core/asama.h). What `is` throws comes out here.
bool Yurut(EkranBaglami& baglam, const QString& ad, const std::function<void(Ilerleme&)>& is);
}  // namespace uzunis

// What `is` has given, of which `ad` tells the user; nothing when it was refused, or stopped and thrown out of.
template <class Is>
std::optional<std::invoke_result_t<Is, Ilerleme&>> UzunIs(EkranBaglami& baglam, const QString& ad, Is is) {
  std::optional<std::invoke_result_t<Is, Ilerleme&>> deger;
  uzunis::Yurut(baglam, ad, [&](Ilerleme& ilerleme) { deger.emplace(is(ilerleme)); });
  return deger;
}

// The same for logic that asks its user before and after its slow part.
Yurutucu UzunYurutucu(EkranBaglami& baglam, const QString& ad);

// Calls `is` from the event loop when no work is running: what a screen does with the store by itself must not fall
// into the middle of another one's transaction. Not at all once `sahip` is gone.
void IsBitince(QObject* sahip, std::function<void()> is);

// Does what waits to be painted or called, at most for so long. For tools that look at the screen without a user.
void OlaylariIsle(int milisaniye);

}  // namespace belvani
