// pergir ("Sigortalı İşe Giriş Formu"): a new employee in the order of the entry declaration, which it also prints.
#pragma once

#include "payroll/hazirlik/parametredeposu.h"
#include "personnel/isegiris.h"
#include "screens/personnel/personelformu.h"

namespace belvani {

class pergir : public PersonelFormu {
 public:
  pergir(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;

 private:
  void Yerlestir();
  QWidget* SandiklariYap();
  void Goster(const GirisFormu& form);
  void KayitlariGoster(const GirisFormu& form);
  void TahsisNoyuAcKapat();
  std::optional<GirisFormu> Okunan();
  void Kaydet();
  bool KayitlariYaz(GirisKayitlari kayitlar);
  void Yazdir();

  ParametreDeposu& parametreler_;
  std::optional<Sicil> ilkSicil_;  // of the person on the screen, as they are stored
  std::optional<Kimlik> ilkKimlik_;
};

}  // namespace belvani
