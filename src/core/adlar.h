// Letters of names that people type: the same letter may be written by different code points, and some are not seen at
// all.
#pragma once

#include <string>
#include <string_view>

namespace belvani {

// In the composed form (NFC): "S" with a cedilla below it becomes "Ş". Broken UTF-8 comes back as it is.
std::string BirlesikHarfli(std::string_view metin);

// A letter that nobody sees, or takes for a plain blank: zero width, marks of direction, fillers, control characters,
// blanks other than " ".
bool GorunmezHarfVar(std::string_view metin);

// For a terminal: each letter that would command it or that nobody sees, and each broken byte, as "�"; tabs, line ends
// and form feeds stay.
std::string TerminalMetni(std::string_view metin);

}  // namespace belvani
