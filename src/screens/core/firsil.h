// firsil ("Firma Silme"): deletes a company with all that it holds. The open one is not offered.
#pragma once

#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class firsil : public Form {
 public:
  explicit firsil(EkranBaglami& baglam);

 private:
  QWidget* UyariYap();
  void ListeyiDoldur();
  void Sec(int satir);
  void Sil();

  dclist* liste_;
  xtext* dizin_;
  xButton* sil_;
  std::string secilen_;  // name of the directory
};

}  // namespace belvani
