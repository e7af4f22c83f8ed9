// iab ("İşten Ayrılma Bildirgesi (İAB)"): the leaving notice of one person. What his records say comes up with him; all
// of it may be typed over for the paper, and nothing is kept.
//
//   F8 Yazıcıya Yazdır    F2 Personel Rehberi    Page Up, Page Down, Ctrl+Home, Ctrl+End: other people
//
// A change of the leaving date or the paper's date counts the net pay, the days and the records anew.
#pragma once

#include "notices/iab.h"
#include "screens/personnel/personelformu.h"
#include "ui/satirtablosu.h"

namespace belvani {

class iab : public PersonelFormu {
 public:
  explicit iab(EkranBaglami& baglam);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;
  void showEvent(QShowEvent* olay) override;

 private:
  void Yerlestir();
  // False: there is no such person, or the store cannot be read.
  bool Getir(const std::string& kod);
  void Goster();
  IabFormu Okunan() const;
  void TarihDegisti();
  void Yazdir();

  dclist* liste_;
  SatirTablosu<IabKaydi> tablo_;
  QLabel* uyarilar_ = nullptr;
  IabFormu form_;          // as it came up
  bool aciliyor_ = false;  // the person shown last comes up by himself
};

}  // namespace belvani
