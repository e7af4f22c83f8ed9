// The employer's side of a pay record: base, premium, unemployment premium, and the state's contribution.
//
// Four eras of premium rules, by the date of the month (`kanun.dat`):
//   1  first half of 2004: the state makes up the difference between the base and the floor (law 5035 era)
//   2  until 31.12.2007: the employer's base is raised to the floor, and the employer bears the employee's share of it
//   3  until 30.09.2008: raised to the floor, without the employee's share
//   4  from 01.10.2008 (law 5510): as 3, no relief for paid leave, and a state contribution by the law of the person
// Law 506, articles 73, 77, 78; law 4447, article 49 and temporary articles 7 and 9; law 5510, articles 80 to 82.
#pragma once

#include "core/tek.h"
#include "core/yuvarlama.h"

namespace belvani {

enum class Uygulama : std::uint8_t { D2004 = 1, D2007 = 2, D2008 = 3, D5510 = 4 };

// Codes 1, 3 and 4 stand; every other one runs as era 2.
Uygulama UygulamaSec(int kod);

struct IsverenGirdisi {
  int SskGun = 0;
  int ui = 0;        // paid-leave days
  Tutar sskmatrah;   // the employee's base
  Tutar sskkesinti;  // and shares
  Tutar issizisci;
  Tek sskiscior, issiziscior, sskisverenor, issizisverenor;  // percent
  Tutar SskTaban;                                            // monthly floor
  Tek TehlikeOran;                                           // work-accident rate of the company, percent
  Tek malulluk;   // employer's invalidity and old-age rate of the person's branch, percent
  int kanun = 0;  // law code of the person
};

struct IsverenSonucu {
  Tutar sskmatrahisveren;
  Tutar sskkesintiisveren;  // with the relief and the employee's shortfall
  Tutar issizisveren;
  Tutar katki;  // the state's part, or in era 1 the top-up to the floor; nothing is reduced by it

  // Parts of sskkesintiisveren, for the trace.
  Tutar prim;
  Tutar izinDususu;
  Tutar isciFarki;
};

IsverenSonucu IsverenPayi(const IsverenGirdisi& g, Uygulama uygulama, Yuvarlayici yuvarla);

}  // namespace belvani
