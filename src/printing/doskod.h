// What a dot-matrix printer understands: letters of code page 857 and its control codes, as bytes.
//
// The two text printers differ, and both are as the forms have always been printed: in `xprn` the second and third
// style are the bytes 27 1 and 27 4, in `prnx` the digit "4" and the byte 1.
#pragma once

#include <string>
#include <string_view>

namespace belvani {

// Set and taken back around a piece of text.
struct DosKodu {
  std::string_view ac;
  std::string_view kapat;
};

inline constexpr DosKodu DosSikisik{"\x0F", "\x12"};  // condensed
inline constexpr DosKodu DosKalin{
    "\x1B"
    "G",
    "\x1B"
    "H"};
inline constexpr DosKodu xprnIkinci{"\x1B\x01", std::string_view("\x1B\x00", 2)};
inline constexpr DosKodu xprnUcuncu{"\x1B\x04", "\x1B\x05"};
inline constexpr DosKodu prnxEgik{
    "\x1B"
    "4",
    "\x1B"
    "5"};
inline constexpr DosKodu prnxUcuncu{"\x1B\x01", std::string_view("\x1B\x00", 2)};
inline constexpr std::string_view DosSayfaAt = "\x0C";
inline constexpr std::string_view DosSatirSonu = "\r\n";

// Styles of a piece, and of a column. They can be joined.
enum class DosBicem : unsigned {
  Duz = 0,
  Kalin = 1,  // double strike
  Ikinci = 2,
  Ucuncu = 4,
  TireDizisi = 128,  // a column prints as a row of "-" instead of its value
};
constexpr DosBicem operator|(DosBicem a, DosBicem b) {
  return DosBicem(unsigned(a) | unsigned(b));
}
constexpr bool BicemVar(DosBicem hepsi, DosBicem biri) {
  return (unsigned(hepsi) & unsigned(biri)) != 0;
}

std::string DosSar(std::string_view baytlar, const DosKodu& kod);

// UTF-8 to bytes of the printer. ASCII, control codes too, stays as it is; a letter that the page lacks becomes "?".
std::string DosBaytlari(std::string_view utf8);

// The same, except that the twelve Turkish letters have their codes of page 1254: what is left of a piece of text when
// the user stops its printing.
std::string CevrilmemisBaytlar(std::string_view utf8);

}  // namespace belvani
