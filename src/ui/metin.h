// Texts between the logic (UTF-8) and the widgets.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace belvani {

inline QString Yazi(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

inline std::string Utf8(const QString& yazi) {
  return yazi.toStdString();
}

}  // namespace belvani
