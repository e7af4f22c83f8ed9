// percik ("Personel İşten Çıkış Formu"): records that a person has left, takes that back, and prints his release.
#pragma once

#include "payroll/hazirlik/parametredeposu.h"
#include "personnel/istencikis.h"
#include "screens/personnel/personelformu.h"

namespace belvani {

class OdemeTablosu;

class percik : public PersonelFormu {
 public:
  percik(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;

 private:
  void Yerlestir();
  void Goster(const CikisFormu& form);
  CikisFormu Okunan() const;
  void Kaydet();
  void GeriAl();
  // Severance and notice of the days on the screen, into the payments of the release.
  void TazminatlariGetir();
  void Yazdir();

  ParametreDeposu& parametreler_;

  OdemeTablosu* odemeler_ = nullptr;
  std::optional<Sicil> kart_;  // of the person on the screen, as it is stored
};

}  // namespace belvani
