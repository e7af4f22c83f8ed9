// kykm ("Kazanç, Yardım Tanımları"): for each group of people, which earnings and allowances are open for entry and
// which bases they enter.
#pragma once

#include "screens/payroll/bayrakizgarasi.h"
#include "screens/payroll/parametreekrani.h"

namespace belvani {

class kykm : public ParametreEkrani {
 public:
  kykm(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  void Yerlestir();
  void GruplariGoster(const std::string& secili);
  void GrupGoster(const std::string& grup);
  void Kaydet();
  void Sil();

  dclist* gruplar_;
  BayrakIzgarasi* kazanclar_;
  BayrakIzgarasi* yardimlar_;
  KazancBayraklari bayraklar_;  // of the group on the screen
};

}  // namespace belvani
