// pertrans ("Şirketler Arası Personel Kopyalama"): copies a person to another company, and lets him leave here with it.
#pragma once

#include "personnel/personeltransfer.h"
#include "screens/personnel/personelformu.h"

namespace belvani {

class pertrans : public PersonelFormu {
 public:
  explicit pertrans(EkranBaglami& baglam);

 protected:
  bool Bul(const std::string& kod) override;
  void Git(Yon yon) override;

 private:
  TransferFormu Okunan() const;
  void CikisiAcKapat();
  void Kopyala();

  std::vector<std::string> sirketler_;  // in the order of the list
};

}  // namespace belvani
