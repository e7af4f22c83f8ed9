// kulfrm ("Kullanıcı İşlemleri"): the users of the company.
#pragma once

#include "core/session/kullanicilar.h"
#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class kulfrm : public Form {
 public:
  explicit kulfrm(EkranBaglami& baglam);

 private:
  void Kaydet();
  void Sil();
  void ListeyiDoldur();
  void Goster(int satir);

  dclist* liste_;
};

}  // namespace belvani
