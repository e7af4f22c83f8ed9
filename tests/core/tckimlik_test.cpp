#include "core/tckimlik.h"

#include <gtest/gtest.h>
#include <string>

namespace belvani {
namespace {

TEST(TcKimlik, ASlipOfOneDigitOrTwoSwappedIsSeen) {
  EXPECT_EQ(TcUyarisi("10000000147"), "TC Kimlik No Kontrol Basamakları Tutmuyor: 10000000147");
  EXPECT_FALSE(TcKontrolTutar("00000000000"));
  for (const std::string dogru : {"10000000146", "89238471844", "82716603362", " 10000000214 "})
    EXPECT_EQ(TcUyarisi(dogru), "");
  const std::string no = "89238471844";
  for (std::size_t i = 0; i < no.size(); ++i)
    for (char c = '0'; c <= '9'; ++c) {
      std::string yanlis = no;
      yanlis[i] = c;
      EXPECT_EQ(TcKontrolTutar(yanlis), yanlis == no) << yanlis;
    }
  // What is no number of eleven digits has words of its own.
  for (const char* baska : {"", "123", "1000000014X", "100000001460"}) EXPECT_TRUE(TcKontrolTutar(baska)) << baska;
}

}  // namespace
}  // namespace belvani
