// Moves through records in the order of their keys.
#pragma once

namespace belvani {

enum class Yon { Ilk, Onceki, Sonraki, Son };

constexpr bool GeriyeMi(Yon yon) {
  return yon == Yon::Onceki || yon == Yon::Son;
}
constexpr bool UcaMi(Yon yon) {
  return yon == Yon::Ilk || yon == Yon::Son;
}

}  // namespace belvani
