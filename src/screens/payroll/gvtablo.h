// gvtablo: the eight brackets of a tax table. With the mode "GV" in the session's PencereTip it is the income-tax table
// ("Gelir Vergisi Tablosu"), otherwise that of the private-expense refund ("Özel Gider İndirimi GV Tablosu").
#pragma once

#include "screens/payroll/listeekrani.h"

namespace belvani {

struct VergiDilimi {
  std::string alt;  // the lower bound as it is shown
  Tutar limit;
  Tek oran;
};

class gvtablo : public ListeEkrani<VergiDilimi> {
 public:
  gvtablo(EkranBaglami& baglam, ParametreDeposu& parametreler);

 private:
  enum class Tur { GelirVergisi, OzelGider };

  gvtablo(EkranBaglami& baglam, ParametreDeposu& parametreler, Tur tur);
  std::vector<VergiDilimi> Dilimler() const;
  bool Sakla(const GvTablosu& tablo);
  void AltSinirlariGoster();
  void YayimlananDugmesi();
  void YayimlananiAl();

  Tur tur_;
  GvTablosu ozel_;  // no part of the session's parameters
};

}  // namespace belvani
