// brdbas ("Bordro Basımı"): the wage ledger of a month: who, which columns, which form. The columns and the printer
// font are kept in the company's bordro.ini, read when the screen opens and written when it closes.
#pragma once

#include "screens/documents/belgeekrani.h"

namespace belvani {

class brdbas : public BelgeEkrani {
 public:
  brdbas(EkranBaglami& baglam, ParametreDeposu& parametreler);

 protected:
  std::unique_ptr<Belge> BelgeYap() override;
  void hideEvent(QHideEvent* olay) override;

 private:
  void AyarYaz();

  std::string ayarDosyasi_;
  DefterAyari ayar_;  // as it stands in the file
  BelgeYazisi yazi_;
};

}  // namespace belvani
