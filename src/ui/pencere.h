// pencere: the lookup window ("Personel Rehberi") from which every code field picks a person. All people of the company
// are shown, those who have left too; the list narrows with every key.
#pragma once

#include "personnel/ara.h"
#include "ui/dclist.h"
#include "ui/form.h"

class QComboBox;

namespace belvani {

class pencere : public Form {
 public:
  explicit pencere(EkranBaglami& baglam);

 private:
  void ListeyiDoldur();
  void Sec(int satir);

  Sonuc<KisiListesi> kisiler_;
  QComboBox* tur_;
  xtext* aranan_;
  dclist* liste_;
};

// Opens the window; the chosen code, or nothing.
std::optional<std::string> PersonelSec(EkranBaglami& baglam, const std::string& simdikiKod);

}  // namespace belvani
