// kykm ("Kazanç, Yardım Tanımları"): for each group of people, which earnings and allowances are open for entry and
// which bases they enter. "Öneri" puts sensible flags on the screen; nothing is saved before F5.
#pragma once

#include "screens/payroll/bayrakizgarasi.h"
#include "screens/payroll/parametreekrani.h"

namespace belvani {

class kykm : public ParametreEkrani {
 public:
  kykm(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  bool Kaydedilmemis() const override;

 private:
  void Yerlestir();
  void GruplariGoster(const std::string& secili);
  KazancBayraklari Ekrandaki() const;
  void GrupGoster(const std::string& grup);
  void GrubaGec(const std::string& grup);
  void OneriKoy();
  void Kaydet();
  void Sil();

  dclist* gruplar_;
  BayrakIzgarasi* kazanclar_;
  BayrakIzgarasi* yardimlar_;
  KazancBayraklari bayraklar_;  // of the group on the screen
  std::string gosterilen_;      // its name
};

}  // namespace belvani
