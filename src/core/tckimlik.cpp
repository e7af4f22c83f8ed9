#include "core/tckimlik.h"

#include <algorithm>
#include <array>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::size_t Hane = 11;

}  // namespace

bool TcKontrolTutar(std::string_view tcno) {
  const std::string_view no = Kirp(tcno);
  const bool rakam = std::ranges::all_of(no, [](char c) { return c >= '0' && c <= '9'; });
  if (no.size() != Hane || !rakam) return true;
  std::array<int, Hane> d{};
  std::ranges::transform(no, d.begin(), [](char c) { return c - '0'; });
  const int tek = d[0] + d[2] + d[4] + d[6] + d[8];
  const int cift = d[1] + d[3] + d[5] + d[7];
  const int onuncu = ((7 * tek - cift) % 10 + 10) % 10;
  return d[0] != 0 && d[9] == onuncu && d[10] == (tek + cift + d[9]) % 10;
}

std::string TcUyarisi(std::string_view tcno) {
  return TcKontrolTutar(tcno) ? std::string() : std::string(TcKontrolUyarisi) + ": " + std::string(Kirp(tcno));
}

}  // namespace belvani
