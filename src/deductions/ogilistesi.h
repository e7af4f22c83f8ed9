// The lists of the personal-expense refund ("ÖGİ"): payroll and payment list of those in work and of those who have
// left, the monthly offset, and what is left of the year.
//
// All are of the expenses of the year before the pay year ("Bordro Yılı"), whose months show what `brd.ogv` has paid.
// All amounts of a list are in one unit, that of the pay year (TutarCevir). From 2008 on `ogv` holds the minimum-living
// allowance, and the lists say so.
#pragma once

#include <string>
#include <vector>

#include "deductions/ogisorgu.h"
#include "documents/belgetanimi.h"
#include "payroll/parametre/ozelgiderparametreleri.h"

namespace belvani {

constexpr int OgiAySayisi = 6;  // the offset takes six months

enum class OgiTuru { Calisan, Ayrilan };
enum class OgiUrunu { Bordro, OdemeListesi };

// What ogibrd and ogibrd2 choose besides period and people.
struct OgiBordroSecimi {
  OgiTuru tur = OgiTuru::Calisan;
  OgiUrunu urun = OgiUrunu::Bordro;
};

// In work on the list of a month: who has left within it still is, who left before its first day is not.
bool OgideCalisiyor(Tarih ciktar, int yil, int ay);

// Of whom and when.
struct OgiBaslik {
  int yil = 0;  // the pay year
  int ay = 0;
  Firma firma;
  OzelGiderParametreleri parametreler;
  OgiBordroSecimi secim;
};

// The people of one kind are given; the months are those of the offset, for the payment list the one month.
Rapor OgiBordrosu(const std::vector<OgiKisisi>& kisiler, const OgiBaslik& baslik);
Rapor OgiMahsupIcmali(const std::vector<OgiKisisi>& kisiler, const OgiBaslik& baslik);
Rapor OgiKalanListesi(const std::vector<OgiKisisi>& kisiler, const OgiBaslik& baslik, Tarih bugun);

// From the store. Throw MotorHatasi and TutarTasmasi.
std::unique_ptr<Belge> OgiBordroBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim,
                                        const OgiBordroSecimi& ogi, const SayfaDuzeni& sayfa, const BelgeYazisi& yazi);
std::unique_ptr<Belge> OgiMahsupBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const BelgeYazisi& yazi);
std::unique_ptr<Belge> OgiKalanBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const BelgeYazisi& yazi);

// What is told beside a list: parameters that cannot be used, an offset that is set for another year, and, alone beside
// a list without months, that `ogv` holds the allowance; "" where there is nothing.
std::string OgiListeSozu(const BelgeKaynagi& kaynak, BelgeSecimi& secim);
std::string OgiAgiSozu(const BelgeKaynagi& kaynak, BelgeSecimi& secim);

}  // namespace belvani
