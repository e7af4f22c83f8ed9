// Colours of the colour table (0x00BBGGRR) and of the widgets.
#pragma once

#include <QColor>
#include <cstdint>
#include <string_view>

#include "core/session/gorunum.h"

namespace belvani {

inline constexpr std::uint32_t EnBuyukRenk = 0xFFFFFF;

inline QColor RenkYap(std::uint32_t bgr) {
  return QColor(int(bgr & 0xff), int((bgr >> 8) & 0xff), int((bgr >> 16) & 0xff));
}

inline std::uint32_t RenkSayisi(const QColor& renk) {
  return std::uint32_t(renk.red()) | (std::uint32_t(renk.green()) << 8) | (std::uint32_t(renk.blue()) << 16);
}

// The colour that a setting tells; `yoksa` where it tells none.
inline QColor AyarRengi(std::string_view metin, const QColor& yoksa = Qt::transparent) {
  const auto renk = RenkOku(metin);
  return renk && *renk <= EnBuyukRenk ? RenkYap(*renk) : yoksa;
}

}  // namespace belvani
