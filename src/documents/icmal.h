// "BORDRO ÖZETİ": a month of pay records summed up, employee and employer side by side, with head counts and days.
//
// A record without days is left out. The sums are those of the stored fields: the stamp duty is `dvtutar`, without the
// share of the minimum-living allowance that the ledger shows as part of it.
// Premiums of people under the support premium (pensioners who work) stand in a line of their own.
#pragma once

#include <span>
#include <vector>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "core/yuvarlama.h"
#include "documents/defter.h"
#include "documents/icmalserisi.h"
#include "payroll/hesap/kayittoplami.h"

namespace belvani {

struct IcmalGirdisi {
  Brd brd;                    // what the summary reads of it
  std::uint8_t sskdurum = 0;  // of the person
};

struct Icmal {
  Brd olagan;             // the amounts of all but the next, added up
  Brd destek;             // of people under the support premium
  int asgariUcretli = 0;  // people whose pay of a day is that of the minimum wage over the same days
  int ucretli = 0;        // all others
  int normalGun = 0;
  int haftaTatili = 0;  // and public holidays
  int izinGun = 0;      // paid leave, excused leave, sick days
  int eksikGun = 0;

  // Of both: Toplami(toplam::odenen) is what the people were paid, without the allowance.
  Tutar Toplami(const Ifade& ifade) const { return Degeri(ifade, olagan) + Degeri(ifade, destek); }
  int ToplamGun() const { return normalGun + haftaTatili + izinGun; }
};

Icmal IcmalHesapla(std::span<const IcmalGirdisi> girdiler, Tutar asgariUcret, Yuvarlayici yuvarla);

Rapor IcmalRaporu(const Icmal& icmal, const DefterBaslik& baslik);

// The chart's, of that source.
IcmalKosulu GrafikKosulu(const BelgeKaynagi& kaynak);

// With the chart of the twelve months up to this one; `kaynak.motor` must outlive it. Throws MotorHatasi and
// TutarTasmasi.
std::unique_ptr<Belge> IcmalBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim);

// Of a month; people whose card is gone are not in it. Throws MotorHatasi.
std::vector<IcmalGirdisi> IcmalGirdileriOku(Motor& motor, int yil, int ay, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
