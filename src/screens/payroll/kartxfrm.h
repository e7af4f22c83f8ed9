// kartxfrm ("Personel Aylık Bilgileri"): the pay records of one person in a year, entered and corrected as they stand;
// nothing is calculated. A month that breaks its own arithmetic is stored and told.
#pragma once

#include "core/tables/brd.h"
#include "screens/personnel/kisisatirlari.h"

namespace belvani {

class kartxfrm : public KisiSatirlari<Brd> {
 public:
  explicit kartxfrm(EkranBaglami& baglam);

 protected:
  std::vector<Brd> SatirlariOku(const std::string& kod) override;
  Yazim<Brd> Yaz(const Okunan<Brd>& satir) override;
  Sonuc<Silme> Sil(const Brd& satir) override;
  Brd YeniKayit() const override;
  void Yazildi(const Okunan<Brd>& satir, const Brd& yazilan) override;

 private:
  void YilaGec();

  int yil_;  // whose months the list holds
};

}  // namespace belvani
