// Parts that forms of one person share: digits in cells beside their caption, questions answered by a cross.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/form/formsayfasi.h"

namespace belvani {

constexpr double HucreEni = 5.5;
constexpr double HucreBoyu = 6;

// A caption on the left and digits in cells that end at the right, in a frame.
void BasamakliHucre(FormKurucu& f, const Dikdortgen& kutu, std::string_view etiket, const std::string& ad, int basamak,
                    std::string_view deger);

// Words with their box to tick behind them ("Erkek: [X]"); `en` is the room of both.
struct SoruSecenegi {
  double en = 0;
  std::string_view etiket;
  std::string ad;
  bool secili = false;
};
// A frame with its caption in the upper line and the boxes in the lower one. Gives the x behind the last one.
double SoruKutusu(FormKurucu& f, const Dikdortgen& kutu, std::string_view etiket,
                  const std::vector<SoruSecenegi>& secenekler);

}  // namespace belvani
