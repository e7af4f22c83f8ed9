// A ledger of any size for measuring, with all its columns, without its calculation.
#pragma once

#include "documents/defter.h"
#include "sirketuret.h"

namespace belvani::bench {

inline BordroSatiri OrnekBordro(int sira) {
  BordroSatiri satir;
  satir.sicil = OrnekKisi(sira);
  satir.tcno = "10000000146";
  const double brut = 608.40 + 7.31 * (sira % 900);
  satir.brd.kod = satir.sicil.kod;
  satir.brd.ng = 26;
  satir.brd.ht = 4;
  for (Tutar Brd::*alan : {&Brd::brutkaz, &Brd::sskmatrah, &Brd::devgvmatrah, &Brd::gvmatrah})
    satir.brd.*alan = Tutar(brut);
  for (Tutar Brd::*alan : {&Brd::sskkesinti, &Brd::gvtutar, &Brd::dvtutar, &Brd::issizisci, &Brd::ogv})
    satir.brd.*alan = Tutar(brut / 10);
  return satir;
}

inline Rapor OrnekDefter(int kisi) {
  std::vector<BordroSatiri> satirlar;
  for (int i = 0; i < kisi; ++i) satirlar.push_back(OrnekBordro(i));
  DefterBaslik baslik;
  baslik.yil = 2008;
  baslik.ay = 1;
  baslik.firma.unvan = "BELVANİ ÖRNEK SANAYİ VE TİCARET LTD. ŞTİ.";
  DefterSecenek secenek;
  secenek.kolonlar.fill(true);
  return DefterRaporu(satirlar, baslik, secenek);
}

}  // namespace belvani::bench
