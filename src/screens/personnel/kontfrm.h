// kontfrm ("Kontrol İşlemleri"): the faults of the personnel records and what is wrong with the company
// as a whole, to read. Enter opens the screen on which it is mended.
#pragma once

#include "personnel/kontrol.h"
#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class kontfrm : public Form {
 public:
  explicit kontfrm(EkranBaglami& baglam);

 private:
  struct Bulunanlar {
    Kusurlar bulgular;  // a row each
    std::vector<KontrolSatiri> satirlar;
  };

  Sonuc<Bulunanlar> KontrolEt(Ilerleme& ilerleme);
  void Doldur();
  void Git(const Kusur& bulgu);

  dclist* liste_;
  Kusurlar bulgular_;  // of the list's rows
};

}  // namespace belvani
