// entyap ("Entegrasyon İşlemleri"): the month's payroll as one voucher, to be looked at, printed, given to other
// programs, and posted into the accounting store.
//
//   F5 İşle    F6 Ekrana Listele    F8 Yazıcıya Yazdır    F9 Excel'e Gönder    F11 Yevmiye Dosyası
#pragma once

#include "accounting/fis.h"
#include "accounting/fisisle.h"
#include "accounting/hesapplani.h"
#include "accounting/yevmiye.h"
#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class Belge;

class entyap : public Form {
 public:
  explicit entyap(EkranBaglami& baglam);

  void FirmaDegisti() override;

 private:
  void ListeyiKur();
  QWidget* ToplamSatiri();
  void MuhasebeyiOku();
  void FisNoKoy(Motor& muhasebe);
  void FisiYap();
  void Goster();
  QString TutarYaz(Tutar tutar) const;
  FisBasligi Baslik() const;
  std::shared_ptr<Belge> FisiVer();
  void YevmiyeYaz();
  void Isle();
  Sonuc<std::int32_t> Islenen(Motor& muhasebe);

  const int yil_, ay_;  // that it was opened for
  std::vector<std::string> gruplar_;
  HesapPlani plan_;
  Fis fis_;
  dclist* liste_;
  QLabel* eksikler_ = nullptr;
  QLabel* borc_ = nullptr;
  QLabel* alacak_ = nullptr;
  QLabel* bakiye_ = nullptr;
};

}  // namespace belvani
