// kontfrm ("Kontrol İşlemleri"): the faults of the personnel records, to read.
#pragma once

#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class kontfrm : public Form {
 public:
  explicit kontfrm(EkranBaglami& baglam);

 private:
  void Doldur();

  dclist* liste_;
};

}  // namespace belvani
