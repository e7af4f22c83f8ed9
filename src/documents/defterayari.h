// The ledger's settings that outlive a run: section "Bordro" of the company's bordro.ini.
#pragma once

#include <string>

#include "core/veriyolu.h"
#include "documents/defter.h"

namespace belvani {

struct DefterAyari {
  DefterAnahtarlari kolonlar = DefterAnahtarlariOku(VarsayilanDefterAnahtarlari);  // `Brdizin`
  std::string yaziTipi = "tahoma";                                                 // `Brdfont`
  int punto = 7;                                                                   // `Brdfsize`

  bool operator==(const DefterAyari&) const = default;
};

// What the file does not tell, or tells wrongly, is as in a new DefterAyari. A row of switches that is too short is
// completed with "on".
DefterAyari DefterAyariOku(const VeriYolu& sirket);
// An unchanged setting is not written, so a company on a read-only medium can be printed without a word.
Durum DefterAyariYaz(const DefterAyari& ayar, const VeriYolu& sirket);

// The same for the choices of the ledger: its columns and its font.
void DefterAyariniOku(const VeriYolu& sirket, BelgeSecimi& secim);
Durum DefterAyariniYaz(const VeriYolu& sirket, BelgeSecimi& secim);

}  // namespace belvani
