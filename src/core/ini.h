// Private-profile files: sections in brackets, "key=value" lines. Also those written by others: blanks, comments
// (";" or "#"), CRLF or LF, Windows code page 1254 or UTF-8 (told line by line) are all read, and kept by a write.
#pragma once

#include <string>
#include <string_view>

#include "core/sonuc.h"

namespace belvani {

// The value of a key, quotes around it cut, at most 254 letters; `varsayilan` where file, section or key is absent.
// Section and key compare without regard to case (ASCII).
std::string IniOku(std::string_view bolum, std::string_view anahtar, std::string_view varsayilan,
                   const std::string& dosya);

// Writes one value; every other line stays as it is, byte for byte. A new file is made in code page 1254 with CRLF; a
// line with a letter that the page lacks is written in UTF-8. A file that is there and cannot be read is not replaced.
Durum IniYaz(std::string_view bolum, std::string_view anahtar, std::string_view deger, const std::string& dosya);

}  // namespace belvani
