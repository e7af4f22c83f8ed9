// What a user gives to be read: a file that he has named (an ordinary one, a pipe, a device) or standard input, whole
// and up to a size, with the reason when it cannot be had.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/sonuc.h"

namespace belvani {

inline constexpr std::size_t EnCokKaynakBayti = 64u << 20;

Sonuc<std::string> KaynakOku(const std::string& yol, std::size_t enCok = EnCokKaynakBayti);
Sonuc<std::string> StandartGirdiOku(std::size_t enCok = EnCokKaynakBayti);

// "900 bayt", "12 KB", "64 MB", "1.5 MB"
std::string BoyMetni(std::uint64_t bayt);

}  // namespace belvani
