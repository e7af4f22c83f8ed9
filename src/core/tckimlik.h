// The check digits of a national identity number.
//
// Eleven digits, the first not 0. The tenth is (7 × the sum of the odd places up to the ninth − the sum of the even
// ones) mod 10, the eleventh the sum of the first ten mod 10. A number that breaks this is a slip of typing nearly
// always, so its user is told; he is never refused, for the office may have it so.
// Example: 10000000146 -> 7 × (1 + 1) − 0 = 14, 4; 1 + 1 + 4 = 6.
#pragma once

#include <string>
#include <string_view>

namespace belvani {

inline constexpr const char* TcKontrolUyarisi = "TC Kimlik No Kontrol Basamakları Tutmuyor";

// Only of eleven digits anything is said: other texts are told as such where eleven digits are wanted.
bool TcKontrolTutar(std::string_view tcno);

// "TC Kimlik No Kontrol Basamakları Tutmuyor: 10000000147"; "" where they do.
std::string TcUyarisi(std::string_view tcno);

}  // namespace belvani
