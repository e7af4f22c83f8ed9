// percik ("Personel İşten Çıkış Formu"): records that a person has left, takes that back, and prints his release.
#pragma once

#include "personnel/istencikis.h"
#include "screens/personnel/personelformu.h"

namespace belvani {

class OdemeTablosu;

class percik : public PersonelFormu {
 public:
  explicit percik(EkranBaglami& baglam);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;

 private:
  void Yerlestir();
  void Goster(const CikisFormu& form);
  CikisFormu Okunan() const;
  void Kaydet();
  void GeriAl();
  void Yazdir();

  OdemeTablosu* odemeler_ = nullptr;
  std::optional<Sicil> kart_;  // of the person on the screen, as it is stored
};

}  // namespace belvani
