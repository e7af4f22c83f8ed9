// A pay record with the values that depend on the rate of stamp duty, worked out once for all columns of a paper.
#pragma once

#include <vector>

#include "documents/defter.h"
#include "documents/turetilen.h"

namespace belvani {

// Refers to the record it was made of.
struct TuretilmisSatir {
  TuretilmisSatir(const BordroSatiri& satir, Tek damgaOran, Yuvarlayici yuvarla, int siraNo)
      : brd(satir.brd),
        sicil(satir.sicil),
        tcno(satir.tcno),
        sira(siraNo),
        gunlukBrut(GunlukBrut(brd, yuvarla)),
        damga(AgiDahilDamga(brd, damgaOran, yuvarla)),
        kesintiler(Kesintiler(brd, damgaOran, yuvarla)),
        net(NetOdenen(brd, damgaOran, yuvarla)) {}

  const Brd& brd;
  const Sicil& sicil;
  const std::string& tcno;
  int sira;  // line of the paper, from 1
  Tutar gunlukBrut;
  Tutar damga;
  Tutar kesintiler;
  Tutar net;
};

inline std::vector<TuretilmisSatir> TuretilmisSatirlar(const std::vector<BordroSatiri>& satirlar,
                                                       const DefterBaslik& baslik) {
  const Yuvarlayici yuvarla(baslik.paraonda);
  std::vector<TuretilmisSatir> sonuc;
  sonuc.reserve(satirlar.size());
  for (const auto& satir : satirlar) sonuc.emplace_back(satir, baslik.damgaOran, yuvarla, int(sonuc.size()) + 1);
  return sonuc;
}

}  // namespace belvani
