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
  void Sec(int satir);
  void Goster(int satir);

  dclist* liste_;
  int secilen_ = -1;  // the row whose user is on the screen
};

}  // namespace belvani
