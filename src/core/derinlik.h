// Bounds on what a parser will build out of a text, told before it starts: a text of a few hundred kilobytes may nest
// so deep that going through it overflows the stack, or make more nodes than there is memory.
#pragma once

#include <cstddef>
#include <string_view>

namespace belvani {

// The most that any file of ours nests is below ten.
inline constexpr int EnCokDerinlik = 64;

// How deep arrays and objects of a JSON text nest, at least: a text that is no JSON may get any number.
int JsonDerinligi(std::string_view json);

// How deep the elements of an XML text nest, at least, and a number that its nodes and attributes do not pass.
struct XmlOlcusu {
  int derinlik = 0;
  std::size_t dugum = 0;
};
XmlOlcusu XmlOlc(std::string_view xml);

}  // namespace belvani
