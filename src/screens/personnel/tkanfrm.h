// tkanfrm ("Toplu Kanun değiştirme"): another law code for all people of a list.
#pragma once

#include "personnel/kanundegistir.h"
#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class tkanfrm : public Form {
 public:
  explicit tkanfrm(EkranBaglami& baglam);

 private:
  void ListeyiKur();
  KanunSecimi Secim() const;
  // The people of the list as they are in the store now; false when they cannot be read, which is told.
  bool Listele();
  void Goster(KanunListesi liste);
  void Degistir();

  dclist* liste_;
  QLabel* sayilar_;
  std::vector<KanunluKisi> kisiler_;
};

}  // namespace belvani
