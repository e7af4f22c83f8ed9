// Dbupdate ("Database Update"): brings the company's store to the program's version, step by step as ticked.
//
// Which steps are open is settled when it opens. Ctrl+Alt+F9 on a version box opens all, for the service technician
// who has to repeat one.
#pragma once

#include <QCheckBox>

#include "core/session/yukseltme.h"
#include "payroll/hazirlik/parametredeposu.h"
#include "ui/form.h"

namespace belvani {

class Dbupdate : public Form {
 public:
  Dbupdate(EkranBaglami& baglam, const ParametreDeposu& parametreler);

  // IsaretYok while nothing has been run.
  GuncellemeSonucu Sonuc() const { return sonuc_; }

 private:
  QWidget* VersiyonlariYap();
  QWidget* AdimlariYap();
  QWidget* UyariYap();
  void HepsiniAc();
  void Calistir();

  const ParametreDeposu& parametreler_;
  std::array<xtext*, 2> versiyonlar_{};
  std::array<QCheckBox*, AdimSayisi> kutular_{};
  GuncellemeSonucu sonuc_ = GuncellemeSonucu::IsaretYok;
};

// Opens it over the main window. ProgramBitsin: the store is lost to this run, and the program must end.
GuncellemeSonucu VeritabaniGuncelleGoster(EkranBaglami& baglam, const ParametreDeposu& parametreler);

}  // namespace belvani
