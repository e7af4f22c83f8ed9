// escofrm ("Eş ve Çocuk Bilgileri"): the family of one person, a row for each relative. A row is saved when it is left.
#pragma once

#include "core/tables/esco.h"
#include "screens/personnel/personelformu.h"
#include "ui/dclist.h"

namespace belvani {

class escofrm : public PersonelFormu {
 public:
  explicit escofrm(EkranBaglami& baglam);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;
  bool KendiligindenKaydet() override;

 private:
  void ListeyiKur();
  void Goster(const std::string& kod);
  void SatiriGoster(int satir, const Esco& esco);
  Esco SatirdanOku(int satir) const;
  bool SatirKaydet(int satir);
  bool SatirSil(int satir);
  bool ListeTusu(const QKeyEvent& olay);

  dclist* liste_;
  std::map<std::int32_t, Esco> okunan_;  // the rows of the list as they are stored, by their numbers
  std::string kod_;                      // whose rows the list holds; "" for nobody's
};

}  // namespace belvani
