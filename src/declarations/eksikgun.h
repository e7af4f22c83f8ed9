// The missing-days form of a month, "SİGORTALILARIN EKSİK GÜN BİLDİRİM FORMU": the people who were paid for fewer days
// than the month has, with number and reason of the days that are missing. It is the reason that lists a person, not
// the number. Law 506, article 79; law 5510, article 86.
//
// Daily earnings are the premium base over the premium days, at least the daily floor (SskTaban / 30, not rounded);
// without days they are 0.
// Example: base 500.00 over 20 days, floor 693.00 -> 25.00; base 300.00 over 20 days -> 23.10 in place of 15.00.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/yuvarlama.h"
#include "declarations/formresimleri.h"
#include "documents/belgetanimi.h"
#include "documents/defter.h"

namespace belvani {

struct EksikGunSatiri {
  EksikGunKisisi kisi;
  Tutar prim;  // daily earnings
};

struct EksikGunListesi {
  std::vector<EksikGunSatiri> satirlar;
  std::vector<std::string> kimliksizler;  // codes of those who are left out for want of an identity record
};

Tutar GunlukKazanc(const Brd& brd, Tutar sskTaban, Yuvarlayici yuvarla);

// By social-security number, the shorter first. One query. Throws MotorHatasi, TutarTasmasi.
EksikGunListesi EksikGunHesapla(const BelgeKaynagi& kaynak, int yil, int ay);

// What both forms of the month are filled with.
struct EksikGunKagidi {
  EksikGunFormu form;
  std::vector<Tutar> primler;  // of form.kisiler
  int paraonda = 2;
};
EksikGunKagidi EksikGunKagidiYap(const BelgeKaynagi& kaynak, int yil, int ay, const EksikGunListesi& liste);
inline EksikGunKagidi EksikGunKagidiYap(const BelgeKaynagi& kaynak, int yil, int ay) {
  return EksikGunKagidiYap(kaynak, yil, ay, EksikGunHesapla(kaynak, yil, ay));
}

inline constexpr const char* EksikGunBasligi = "Eksik Gün Bildirim Formu";

// Twenty people a page, at least one page. "SAYFA TOPLAMI" is of the page alone.
std::vector<FormSayfasi> EksikGunSayfalari(const EksikGunKagidi& kagit, Ilerleme* ilerleme = nullptr);

// Of the month of the selection; its people are not looked at.
std::unique_ptr<Belge> EksikGunBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim);

}  // namespace belvani
