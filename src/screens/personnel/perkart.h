// perkart ("Personel Kartları"): the card of one person, with his photograph.
#pragma once

#include "core/tables/sicil.h"
#include "payroll/hazirlik/parametredeposu.h"
#include "screens/personnel/personelformu.h"

namespace belvani {

class ResimKutusu;

class perkart : public PersonelFormu {
 public:
  perkart(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;
  bool AlanRehberi() override;
  bool Kaydedilmemis() const override { return Form::Kaydedilmemis() || !yeniResim_.empty(); }

 private:
  void Yerlestir();
  QWidget* IndirimleriYap();  // the boxes bear the names of the company's deductions
  QWidget* ResmiYap();
  void Goster(const Sicil& kart);
  void Bosalt();
  void UcretTipiDegisti();
  void UcretiAcKapat();
  void Kaydet();
  void Sil();
  void ResimEkle();
  void ResimSil();

  ParametreDeposu& parametreler_;
  std::optional<Sicil> okunan_;  // the card on the screen as it came up; none for a new one
  ResimKutusu* resim_ = nullptr;
  std::string yeniResim_;  // chosen and not saved yet
  Tutar yaziliUcret_;      // what comes back when the wage is no longer the minimum wage
};

}  // namespace belvani
