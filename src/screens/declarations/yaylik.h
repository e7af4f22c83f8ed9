// yaylik ("Aylık Bildirge (EK-9  (4a))"): the month's premium and service declaration. The grid and the totals are
// views of AylikBildirge: a line of the grid knows the number of its row, what the user changes goes there at once,
// cell by cell, and every way out starts from there. A selection that the grid was not made for stands above it in red,
// and totals that an edit has changed are marked, with what was calculated in their tool tip.
//
// With the mode "sgdp" in the session's PencereTip it is the declaration of working pensioners.
//
//   F5 Hesapla    F8 Yazıcıya Yazdır    F9 Excel'e gönderim    F11 E-Bildirge Hazırla
#pragma once

#include "declarations/aylikbildirge.h"
#include "payroll/hazirlik/mevzuatsorusu.h"
#include "ui/form.h"
#include "ui/satirtablosu.h"

class QGridLayout;

namespace belvani {

class yaylik : public Form {
 public:
  yaylik(EkranBaglami& baglam, ParametreDeposu& parametreler);

  const AylikBildirge& Bildirge() const { return bildirge_; }

 protected:
  // Edits are kept by no store: to leave is to give them up, by whatever key.
  bool KendiligindenKaydet() override { return bildirge_.BirakilsinMi(); }

 private:
  yaylik(EkranBaglami& baglam, ParametreDeposu& parametreler, bool emekliler);
  QLabel* HataSatiri(const char* ad);
  QWidget* PrimTablosu();
  void Hesapla();
  bool HesaplaVeGoster();
  bool Guncel();
  void Goster();
  void EskiyiGoster();
  void SayaclariIsaretle();
  void ToplamlariGoster();
  bool HucreAl(int sira, const QString& ad, QString& metin);
  bool SatirSil(int sira);
  void KusurGoster(const Kusur& kusur);
  void SorunlariGoster();
  void AlanDegisince(const AlanDenetimi& alan);
  void Yazdir();
  void ExceleGonder();
  void EBildirge();

  ParametreDeposu& parametreler_;
  MevzuatSorusu mevzuat_;
  AylikBildirge bildirge_;
  dclist* liste_;
  SatirTablosu<BildirgeSatiri> tablo_;
  std::array<QLabel*, BransSayisi> oranlar_{};
  std::array<QLabel*, BransSayisi> primler_{};
  QLabel* genelToplam_ = nullptr;
  QLabel* eksikler_ = nullptr;
  std::vector<std::string> listelenen_;  // people left out, as they were listed last
  QLabel* eskime_ = nullptr;
};

}  // namespace belvani
