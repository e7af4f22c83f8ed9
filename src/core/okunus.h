// Numbers as the files of other programs write them, with either decimal mark: "1250,50", "1.250,50", "1250.50", "7.5".
// Where only one of the two readings is a number, that is it; "1.250" has two, and only whoever gives the file knows.
#pragma once

#include <string>
#include <string_view>

namespace belvani {

enum class OndalikImi {
  Belirsiz,  // each number must have one reading
  Nokta,
  Virgul,
};

// The number as sayi.h reads it ("1250.50"); a text that is no number in this notation comes back with a fault.
// "1.250,50" -> "1250.50"; "1.250" -> fault, unless the mark is told: Nokta "1.250", Virgul "1250".
std::string SayiyiDuzelt(std::string_view metin, OndalikImi im, std::string& kusur);

}  // namespace belvani
