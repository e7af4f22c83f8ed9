// Words that the drawn and the text form of a relative's paper share.
#pragma once

#include <string>
#include <string_view>

#include "ozluk/vizitekagidi.h"

namespace belvani::vizite {

inline constexpr std::string_view EsCocukBasligi = "(Sigortalının Eş ve Çocukları için)";
inline constexpr std::string_view AnaBabaBasligi = "(Sigortalının Anne ve Babası  için)";
inline constexpr std::string_view BelgeTarihiEtiketi = "Belgenin Düzenlendiği Tarih :";
inline constexpr std::string_view SonGecerlilikEtiketi = "Belgenin Son Geçerlilik Tarihi :";

// The kinship as the list has it.
std::string YakinlikSozu(const ViziteYakini& yakin);

// Whose paper it is: "Eş veya Çocuğun", "Ana veya Babanın".
std::string_view Kimin(const ViziteKagidi& kagit);

// What the employer declares and undertakes, in one line.
std::string BeyanMetni(const ViziteKagidi& kagit);

}  // namespace belvani::vizite
