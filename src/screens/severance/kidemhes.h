// kidemhes ("Kıdem, İhbar Hesaplama"): works out the severance and notice of one person, explains each amount, and
// gives the sheet to printer and spreadsheet. Nothing of it is stored.
#pragma once

#include "payroll/hazirlik/parametredeposu.h"
#include "screens/personnel/personelformu.h"
#include "severance/kidemhesabi.h"

namespace belvani {

class NedenPaneli;

class kidemhes : public PersonelFormu {
 public:
  kidemhes(EkranBaglami& baglam, ParametreDeposu& parametreler);

  void FirmaDegisti() override;

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;
  void showEvent(QShowEvent* olay) override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  void Yerlestir();
  KidemKosullari KosullariYukle() const;
  void KosullariTazele();
  void KosullariSoyle();
  // What was typed since goes into the calculation; a fault is told.
  void Uygula();
  void AlaniUygula(const AlanDenetimi& alan);
  void Goster();
  void NedeniGoster(const QObject* parca);
  void SonuclaraGit();
  // The sheet of the person on the screen goes out.
  void Ver(void (*yol)(EkranBaglami&, Belge&));

  ParametreDeposu& parametreler_;
  KidemHesabi hesap_;
  std::uint64_t surum_ = 0;  // of the parameters that it calculates with
  NedenPaneli* neden_;
  QLabel* notlar_;
  std::vector<const AlanDenetimi*> degisen_;
  bool sonucta_ = false;   // Tab walks the results too
  bool soylendi_ = false;  // what is wrong with the parameters
};

}  // namespace belvani
