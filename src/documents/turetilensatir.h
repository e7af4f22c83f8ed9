// A pay record with the values that depend on the rate of stamp duty, worked out once for all columns of a paper.
#pragma once

#include "documents/defter.h"
#include "documents/turetilen.h"
#include "printing/kolonlar.h"

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

// A list of pay records, made record by record.
class TuretilmisListe {
 public:
  TuretilmisListe(Kolonlar<TuretilmisSatir> kolonlar, const DefterBaslik& baslik)
      : rapor(kolonlar.BosRapor(baslik.paraonda)),
        kolonlar_(std::move(kolonlar)),
        damgaOran_(baslik.damgaOran),
        yuvarla_(baslik.paraonda) {}

  Rapor rapor;

  // Throws TutarTasmasi when an amount leaves its range.
  TuretilmisSatir Ekle(const BordroSatiri& kayit, bool yeniSayfa = false) {
    const TuretilmisSatir satir(kayit, damgaOran_, yuvarla_, int(rapor.Satirlar().size()) + 1);
    rapor.Ekle({kolonlar_.Hucreler(satir), yeniSayfa});
    return satir;
  }

 private:
  Kolonlar<TuretilmisSatir> kolonlar_;
  Tek damgaOran_;
  Yuvarlayici yuvarla_;
};

}  // namespace belvani
