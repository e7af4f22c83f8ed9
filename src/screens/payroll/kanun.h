// kanun ("Kanun Tarihleri"): which premium rules hold from when to when.
#pragma once

#include "screens/payroll/listeekrani.h"

namespace belvani {

class kanun : public ListeEkrani<KanunSatiri> {
 public:
  kanun(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  std::vector<KanunSatiri> Satirlar() const override;
  bool Yaz(const std::vector<KanunSatiri>& satirlar) override;
  bool SatirSaglam(int satir);
};

}  // namespace belvani
