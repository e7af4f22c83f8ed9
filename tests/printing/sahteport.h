// A parallel port for tests.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "printing/paralelport.h"

namespace belvani::test {

// Gives the scripted statuses in turn, then the last for ever; keeps the bytes that were taken.
struct SahtePort final : ParalelPort {
  std::vector<std::uint8_t> durumlar = {port::Alindi};
  std::string alinan;
  std::vector<int> portlar;
  int portSayisi = 0;  // that the computer has

  bool Var(int no) override { return no < portSayisi; }
  std::uint8_t GetStatus(int no) override {
    portlar.push_back(no);
    const std::uint8_t durum = durumlar.front();
    if (durumlar.size() > 1) durumlar.erase(durumlar.begin());
    return durum;
  }
  std::uint8_t DosPrint(int no, std::uint8_t bayt) override {
    const std::uint8_t durum = GetStatus(no);
    if (durum & port::Alindi) alinan += static_cast<char>(bayt);
    return durum;
  }
};

}  // namespace belvani::test
