// The papers of the pay records, from the store to a document that can be shown, printed and kept: one function for
// each, for the screens and the command line alike.
#pragma once

#include <memory>

#include "documents/agilistesi.h"
#include "documents/defterayari.h"
#include "documents/izin.h"
#include "payroll/parametre/parametreler.h"
#include "printing/belge.h"

namespace belvani {

// What they are made from.
struct BelgeKaynagi {
  Motor& motor;
  const YasalParametreler& yasal;
  int paraonda = 2;
};

// The font of a list, as its screen's "Yazıcı Fontu" was left.
struct BelgeYazisi {
  std::string yaziTipi = "tahoma";
  int punto = 8;
};

// A period without pay records gives a document without rows. All throw MotorHatasi and TutarTasmasi.
std::unique_ptr<Belge> DefterBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const DefterSecenek& secenek,
                                     const BelgeYazisi& yazi);
std::unique_ptr<Belge> OzelBordroBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const SayfaDuzeni& duzen,
                                         const BelgeYazisi& yazi);
std::unique_ptr<Belge> UcretPusulalari(const BelgeKaynagi& kaynak, const DefterSecim& secim, SayfadaYaprak sayfada);
// With the chart of the twelve months up to this one.
std::unique_ptr<Belge> IcmalBelgesi(const BelgeKaynagi& kaynak, int yil, int ay);
std::unique_ptr<Belge> IzinBelgesi(const BelgeKaynagi& kaynak, int yil, const MetinAraligi& kod, IzinRaporu tip,
                                   const BelgeYazisi& yazi);
std::unique_ptr<Belge> AgiBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim);

// The slips as a table with a row for each person, for other programs.
Rapor PusulaTablosu(const BelgeKaynagi& kaynak, const DefterSecim& secim);

}  // namespace belvani
