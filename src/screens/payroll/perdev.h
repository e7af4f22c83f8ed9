// perdev ("Personel Devir Bilgileri"): the closed years of one person.
#pragma once

#include "core/tables/dvr.h"
#include "screens/personnel/kisisatirlari.h"

namespace belvani {

class perdev : public KisiSatirlari<Dvr> {
 public:
  explicit perdev(EkranBaglami& baglam);

 protected:
  std::vector<Dvr> SatirlariOku(const std::string& kod) override;
  Yazim<Dvr> Yaz(const Okunan<Dvr>& satir) override;
  Sonuc<Silme> Sil(const Dvr& satir) override;
  Dvr YeniKayit() const override;
  void Yazildi(const Okunan<Dvr>& satir, const Dvr& yazilan) override;
};

}  // namespace belvani
