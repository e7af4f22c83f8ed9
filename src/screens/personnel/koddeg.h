// koddeg ("Personel Kod Değişikliği"): gives a person another code.
#pragma once

#include "personnel/koddegistir.h"
#include "screens/personnel/personelformu.h"

namespace belvani {

class koddeg : public PersonelFormu {
 public:
  explicit koddeg(EkranBaglami& baglam);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;

 private:
  void Degistir();
};

}  // namespace belvani
