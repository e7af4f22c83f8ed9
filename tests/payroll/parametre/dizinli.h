// A test with a directory of its own, and files in it by name.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "core/dosya.h"
#include "gecici.h"

namespace belvani::test {

class Dizinli : public testing::Test {
 protected:
  const std::string& Dizin() const { return dizin_.Yol(); }
  std::string Yol(const std::string& ad) const { return Dizin() + ad; }
  void Yaz(const std::string& ad, const std::string& baytlar) const { ASSERT_TRUE(DosyaYaz(Yol(ad), baytlar)); }
  // "<none>" for a file that does not exist.
  std::string Oku(const std::string& ad) const { return DosyaOku(Yol(ad)).value_or("<none>"); }
  std::ptrdiff_t DosyaSayisi() const { return std::distance(std::filesystem::directory_iterator(Dizin()), {}); }

 private:
  GeciciDizin dizin_;
};

}  // namespace belvani::test
