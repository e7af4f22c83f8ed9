// escofrm ("Eş ve Çocuk Bilgileri"): the family of one person, a row for each relative.
#pragma once

#include "core/tables/esco.h"
#include "screens/personnel/kisisatirlari.h"

namespace belvani {

class escofrm : public KisiSatirlari<Esco> {
 public:
  explicit escofrm(EkranBaglami& baglam);

 protected:
  std::vector<Esco> SatirlariOku(const std::string& kod) override;
  Yazim<Esco> Yaz(const Okunan<Esco>& satir) override;
  Sonuc<Silme> Sil(const Esco& satir) override;
  Esco YeniKayit() const override;
  void Yazildi(const Okunan<Esco>& satir, const Esco& yazilan) override;
  DegerDili Dil() const override;
};

}  // namespace belvani
