// Private-profile files: sections in brackets, "key=value" lines. Also those written by others: blanks, comments
// (";" or "#"), CRLF or LF, Windows code page 1254 or UTF-8 (told line by line) are all read, and kept by a write.
#pragma once

#include <string>
#include <string_view>

#include "core/veriyolu.h"

namespace belvani {

// A file of that kind, by its place and name, or by its path.
struct IniDosyasi {
  IniDosyasi(VeriYolu yer, std::string dosyaAdi) : yol(std::move(yer)), ad(std::move(dosyaAdi)) {}
  IniDosyasi(const std::string& dosyaYolu);  // NOLINT: a path is a file

  std::string Adres() const { return yol.Adres(ad); }

  VeriYolu yol;
  std::string ad;
};

// A company's own settings: several rooms keep theirs in it, each in a section.
inline constexpr const char* SirketAyarDosyasi = "bordro.ini";

// The value of a key, quotes around it cut, at most 254 letters; `varsayilan` where file, section or key is absent.
// Section and key compare without regard to case (ASCII).
std::string IniOku(std::string_view bolum, std::string_view anahtar, std::string_view varsayilan,
                   const IniDosyasi& dosya);

// Writes one value, with the place locked: two programs that write different keys lose none; every other line stays as
// it is, byte for byte. A new file is made in code page 1254 with CRLF; a line with a letter that the page lacks is
// written in UTF-8. A file that is there and cannot be read is not replaced.
Durum IniYaz(std::string_view bolum, std::string_view anahtar, std::string_view deger, const IniDosyasi& dosya);

}  // namespace belvani
