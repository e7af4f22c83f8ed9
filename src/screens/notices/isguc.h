// isguc ("İşgücü Çizelgesi"): the month's workforce for the employment agency, typed into two lists of fixed rows. What
// the store knows of it can be filled in; the chart prints and goes to a spreadsheet, and is kept nowhere.
//
//   F5 Kayıtlardan Doldur    F8 Yazıcıya Yazdır    F9 Excel'e Gönder
#pragma once

#include "notices/isgucu.h"
#include "ui/form.h"
#include "ui/satirtablosu.h"

namespace belvani {

class isguc : public Form {
 public:
  explicit isguc(EkranBaglami& baglam);

 protected:
  // What was typed is kept by no store: to leave is to give it up.
  bool KendiligindenKaydet() override;

 private:
  QWidget* ListeKutusu(const QString& baslik, dclist& liste, std::span<const std::string_view> gruplar, int satir);
  void Goster();
  // Nothing when a field or cell cannot be read, which is told.
  std::optional<IsgucuCizelgesi> Okunan();
  void Doldur();
  void Yazdir();
  void ExceleGonder();

  dclist* liste1_;
  dclist* liste2_;
  SatirTablosu<IsgucuSatiri> satirlar_;
  SatirTablosu<IsgucuSatiri> ayrimlar_;
  IsgucuCizelgesi cizelge_;
  bool yazildi_ = false;
};

}  // namespace belvani
