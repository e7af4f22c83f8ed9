// "BORDRO ÖZETİ": a month of pay records summed up, employee and employer side by side, with head counts and days.
//
// A record without days is left out. The sums are those of the stored fields: the stamp duty is `dvtutar`, without the
// share of the minimum-living allowance that the ledger shows as part of it.
// Premiums of people under the support premium (pensioners who work) stand in a line of their own.
#pragma once

#include <span>
#include <vector>

#include "core/store/motor.h"
#include "core/yuvarlama.h"
#include "documents/defter.h"

namespace belvani {

struct IcmalGirdisi {
  Brd brd;                    // what the summary reads of it
  std::uint8_t sskdurum = 0;  // of the person
};

struct IcmalPaylari {
  Tutar isci;
  Tutar isveren;
};

struct Icmal {
  IcmalPaylari sskMatrahi;
  IcmalPaylari sskKesintisi;   // of all but the next
  IcmalPaylari sgdpKesintisi;  // support premium
  IcmalPaylari issizlik;
  Tutar gvMatrahi;
  Tutar gvKesintisi;
  Tutar damgaMatrahi;
  Tutar damgaKesintisi;
  Tutar agi;
  Tutar digerKesinti;  // union dues and debts
  Tutar brut;
  int asgariUcretli = 0;  // people whose pay of a day is that of the minimum wage over the same days
  int ucretli = 0;        // all others
  int normalGun = 0;
  int haftaTatili = 0;  // and public holidays
  int izinGun = 0;      // paid leave, excused leave, sick days
  int eksikGun = 0;

  IcmalPaylari ToplamSsk() const;  // the three premiums
  Tutar ToplamVergi() const;       // income tax and stamp duty
  IcmalPaylari OdemelerToplami() const;
  Tutar PersonelOdemeleri() const;  // gross less all that is kept back; the allowance is not in it
  int ToplamGun() const { return normalGun + haftaTatili + izinGun; }
};

Icmal IcmalHesapla(std::span<const IcmalGirdisi> girdiler, Tutar asgariUcret, Yuvarlayici yuvarla);

Rapor IcmalRaporu(const Icmal& icmal, const DefterBaslik& baslik);

// With the chart of the twelve months up to this one; `kaynak.motor` must outlive it. Throws MotorHatasi and
// TutarTasmasi.
std::unique_ptr<Belge> IcmalBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim);

// Of a month; people whose card is gone are not in it. Throws MotorHatasi.
std::vector<IcmalGirdisi> IcmalGirdileriOku(Motor& motor, int yil, int ay);

}  // namespace belvani
