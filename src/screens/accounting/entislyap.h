// entislyap ("İşletme Defteri Entegrayonu"): a month's wage cost and premiums as two expense lines of the business
// ledger.
#pragma once

#include "accounting/entegrasyonayari.h"
#include "accounting/isletme.h"
#include "ui/form.h"

namespace belvani {

class entislyap : public Form {
 public:
  explicit entislyap(EkranBaglami& baglam);

 protected:
  bool YazilaniKaydet() override { return Yaz(); }

 private:
  void DizinSec();
  bool Yaz();
  void Kaydet();
};

}  // namespace belvani
