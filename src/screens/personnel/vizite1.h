// vizite1 ("Sigortalıya Ait Vizite Kağıdı"): the paper of the insured person, with the days and wages of twelve months
// in a list that may be typed over.
#pragma once

#include "screens/personnel/viziteekrani.h"
#include "ui/satirtablosu.h"

namespace belvani {

class vizite1 : public ViziteEkrani {
 public:
  explicit vizite1(EkranBaglami& baglam);

 private:
  void AylariGoster(const ViziteAylari& aylar, bool ayniKisi) override;
  bool KagidaYaz(ViziteKagidi& kagit) override;
  ViziteAylari Okunan() const;
  void HucreyiBosalt(int satir);
  void ToplamlariGoster();

  dclist* liste_;
  SatirTablosu<ViziteAyi> tablo_;
  ViziteAylari aylar_{};  // as the list was filled
  QLabel* toplamlar_ = nullptr;
};

}  // namespace belvani
