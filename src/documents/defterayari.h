// The ledger's settings that outlive a run: section "Bordro" of the company's bordro.ini.
#pragma once

#include <string>

#include "core/sonuc.h"
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
DefterAyari DefterAyariOku(const std::string& dosya);
// An unchanged setting is not written, so a company on a read-only medium can be printed without a word.
Durum DefterAyariYaz(const DefterAyari& ayar, const std::string& dosya);

// The same for the choices of the ledger: its columns and its font.
void DefterAyariniOku(const std::string& firmaDizini, BelgeSecimi& secim);
Durum DefterAyariniYaz(const std::string& firmaDizini, BelgeSecimi& secim);

}  // namespace belvani
