// The search for a text in the cells of a report: case ignored as Turkish does, amounts with and without their
// thousands commas.
#pragma once

#include <string>
#include <vector>

#include "printing/rapor.h"

namespace belvani {

class xgridArama {
 public:
  xgridArama(const Rapor& rapor, const std::string& aranan);

  bool Uyar(int kayit, int kolon) const;

 private:
  bool Bakilir(const RaporKolonu& kolon) const;

  const Rapor& rapor_;
  std::string aranan_;  // folded
  int gruplama_;
  bool harfli_;
  std::vector<bool> bakilir_;  // columns that can have the text at all
};

}  // namespace belvani
