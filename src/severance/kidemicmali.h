// "KIDEM-İHBAR ICMAL LISTESI": what a company would owe in severance and notice if everyone left on a day: a row for
// each person, with sums. It has no printed form.
#pragma once

#include <memory>

#include "documents/belgetanimi.h"
#include "severance/kidemkisileri.h"
#include "severance/kidemkosullari.h"
#include "severance/kidemtavani.h"

namespace belvani {

struct KidemIcmalSecimi {
  Tarih baz = Tarih::Bugun();
  KidemTavaniSecimi tavan = KidemTavaniSecimi::Kurulu;

  BelgeZamani Zaman() const { return {baz.Yil(), baz.Ay(), baz.Iso()}; }
  std::optional<Kusur> Kusuru() const;  // the base date must be a day
};

// A person in the list, his amounts money-rounded.
struct KidemIcmalSatiri {
  KidemIcmalSatiri(const KidemKisisi& k, Tarih gun) : kisi(k), baz(gun) {}

  const KidemKisisi& kisi;  // must outlive it
  Tarih baz;
  Tutar AylikUcret;
  int CalismaGunu = 0;
  Tutar gunlukEsas;
  Tutar brutKidem;
  Tutar kidemDamga;
  Tutar netKidem;
  int IhbarGun = 0;
  Tutar brutIhbar;
  Tutar ihbarGelirVergisi;
  Tutar ihbarDamga;
  Tutar netIhbar;
};

// Throws TutarTasmasi.
KidemIcmalSatiri KidemIcmalSatiriYap(const KidemKisisi& kisi, Tarih baz, const KidemKosullari& kosullar,
                                     Tutar KidemTavan);

// Ranges of the selection count. Throws MotorHatasi, TutarTasmasi.
std::unique_ptr<Belge> KidemIcmalBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim,
                                         const KidemIcmalSecimi& icmal);

}  // namespace belvani
