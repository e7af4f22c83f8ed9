// devkon ("Yıllık Devir Bilgileri Kontrolu"): sums a closed year up into the carry-over of each person.
#pragma once

#include <QLabel>

#include "ui/form.h"

namespace belvani {

class devkon : public Form {
 public:
  explicit devkon(EkranBaglami& baglam);

  void FirmaDegisti() override;

 private:
  void Calistir();

  QLabel* ondalik_;  // how the company's money decimals stand
};

}  // namespace belvani
