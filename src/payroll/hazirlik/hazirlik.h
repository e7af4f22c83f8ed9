// Preparing a month's payroll and keeping it: one person, or the whole company at once.
//
// A mass run is one transaction. It goes through all people in code order; whoever belongs to the period is calculated
// from his saved record, else from the template, each overlaid by what an entry list gives for him, and is saved when
// his net is above zero. Either the whole month is saved or nothing is: an entry that cannot stand, a cancel or a
// failed write leaves the store as it was. In a store that lacks fields of an upgrade no month is saved.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "core/store/cakisma.h"
#include "core/tables/brd.h"
#include "payroll/hazirlik/kisi.h"

namespace belvani {

// Days, hours, allowances, missing days, debt and rates of one person as they were entered.
struct GirisSatiri {
  int satirNo = 0;  // line of the file, for messages
  std::string kod;
  Brd deger;
  std::set<std::string_view> verilen;  // names of the columns that were given
};

struct HazirlikSonucu {
  int kaydedilen = 0;
  int donemDisi = 0;        // did not work in the period
  int netsiz = 0;           // net not above zero: not saved
  Kusurlar sorunlar;        // by person; a Hata keeps the month from being saved
  bool kaydedildi = false;  // false: some Hata, nothing was saved

  // Nobody works in the month, and there is nothing to tell of anybody.
  bool KimseYok() const { return kaydedilen == 0 && netsiz == 0 && sorunlar.empty(); }
  std::string Ozet() const;  // "31 kişi kaydedildi, 2 kişi dönem dışı, 0 kişi netsiz"
};

// Fails as a whole when the store cannot be written or `ilerleme` cancels.
Sonuc<HazirlikSonucu> TopluHazirla(Oturum& o, const Kosullar& kosullar, const std::vector<GirisSatiri>& girisler = {},
                                   Ilerleme* ilerleme = nullptr);

// Saves one record, whole, over the one that was read or as the person's first of the month. When that one has been
// changed or deleted meanwhile, or one has been added, nothing is written, and the fault names person and month. Throws
// MotorHatasi.
Yazim<Brd> BordroKaydet(Motor& motor, const Okunan<Brd>& kayit);

// Deletes all records of a month, of all people; gives their number. As before a mass run, they are kept
// (payroll/hazirlik/aysaklama.h). It can be given up (Vazgecilmis) until the records are gone.
Sonuc<int> BordroSil(Oturum& o, int yil, int ay, Ilerleme* ilerleme = nullptr);

// Whether everyone of the month has a record: always true, nothing is looked at. Asked when the payroll screen closes
// and before the electronic declaration.
bool BordroTamamMi(int ay, int yil, int no);

}  // namespace belvani
