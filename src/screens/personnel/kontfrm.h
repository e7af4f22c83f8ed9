// kontfrm ("Kontrol İşlemleri"): the faults of the personnel records and what is wrong with the company
// as a whole, to read. Enter opens the screen on which it is mended.
#pragma once

#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class kontfrm : public Form {
 public:
  explicit kontfrm(EkranBaglami& baglam);

 private:
  void Doldur();
  void Git(const Kusur& bulgu);

  dclist* liste_;
  Kusurlar bulgular_;  // a row of the list each
};

}  // namespace belvani
