// perbul ("Personel Bul"): in which of the companies does someone work?
#pragma once

#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class perbul : public Form {
 public:
  explicit perbul(EkranBaglami& baglam);

 private:
  void Ara();

  dclist* liste_;
  QLabel* sonuc_;
};

}  // namespace belvani
