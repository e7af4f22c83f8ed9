// nufus ("Personel Kimlik Bilgileri"): the civil-registry data of one person.
#pragma once

#include "core/tables/kimlik.h"
#include "screens/personnel/personelformu.h"

namespace belvani {

class nufus : public PersonelFormu {
 public:
  explicit nufus(EkranBaglami& baglam);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;

 private:
  void Goster(const Kimlik& kimlik);
  void Bosalt();
  void Kaydet();
  void Sil();

  std::optional<Kimlik> okunan_;  // the record on the screen as it is stored; none for a new one
};

}  // namespace belvani
