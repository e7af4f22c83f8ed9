// Colours of the colour table (0x00BBGGRR) and of the widgets.
#pragma once

#include <QColor>
#include <cstdint>

namespace belvani {

inline QColor RenkYap(std::uint32_t bgr) {
  return QColor(int(bgr & 0xff), int((bgr >> 8) & 0xff), int((bgr >> 16) & 0xff));
}

inline std::uint32_t RenkSayisi(const QColor& renk) {
  return std::uint32_t(renk.red()) | (std::uint32_t(renk.green()) << 8) | (std::uint32_t(renk.blue()) << 16);
}

}  // namespace belvani
