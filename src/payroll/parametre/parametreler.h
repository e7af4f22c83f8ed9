// The parameters of payroll law and of the company, as the calculation reads them: plain values, no files.
//
// Amounts are in the lira of the company's books, rates in percent, stamp duty per thousand. Where each figure comes
// from is written beside it in data/mevzuat/; how it lies in the parameter files, in payroll/parametre/dosyalar.h.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/tarih.h"
#include "core/tek.h"
#include "core/tutar.h"

namespace belvani {

// Premium rates of one insurance branch, percent, of one side (employee or employer).
struct OranSatiri {
  Tek ana;   // maternity
  Tek has;   // sickness; general health insurance from 01.10.2008
  Tek mal;   // invalidity, old age, death
  Tek sgdp;  // social-security support premium (working pensioners)
  Tek isz;   // unemployment; not part of the premium total

  bool operator==(const OranSatiri&) const = default;
};

constexpr int DalSayisi = 32;  // insurance branches that have rates

// The premium total of a side ("Top." on the rate screen): all but unemployment. 1 + 6 + 11 + 0 -> 18.
inline double OranToplami(const OranSatiri& o) {
  return o.ana.Sayi() + o.has.Sayi() + o.mal.Sayi() + o.sgdp.Sayi();
}

struct YasalOranlar {
  std::array<OranSatiri, DalSayisi> IsciOran{};  // row r: branch number r + 1, the person's `sskdurum` r
  std::array<OranSatiri, DalSayisi> IsverenOran{};
  Tutar AsgariUcret;                        // gross minimum wage, monthly
  Tutar SskTaban;                           // floor of the premium base, monthly
  Tutar SskTavan;                           // ceiling of the premium base, monthly
  Tutar KidemTavan;                         // ceiling of severance pay for a year of service
  Tek DamgaOran;                            // stamp duty on wages, per thousand
  Tutar MuafTavan;                          // yearly ceiling of each deduction from the tax base
  std::array<std::uint8_t, 16> Ayrilmis{};  // kept as read
  std::array<Tutar, 3> SakatIndirim{};      // disability deduction, monthly, degrees 1 to 3
  Tek MuafOran;                             // kept, not calculated with

  bool operator==(const YasalOranlar&) const = default;
};

// Income-tax brackets on the year's base: upper limits, ascending, and percent. A limit of zero marks an unused row.
struct GvTablosu {
  std::array<Tutar, 8> GvLimit{};
  std::array<Tek, 8> GvOran{};

  bool operator==(const GvTablosu&) const = default;
};

// Minimum-living allowance (income tax law, article 32; from 01.01.2008): percent of the base for each member.
struct AgiTablosu {
  Tek AgiKendisi;
  Tek AgiEsi;
  Tek AgiCocuk12;  // each of the first two children
  Tek AgiCocuk3;   // the third
  Tek AgiCocuk4;   // each further one
  Tutar AgiTaban;  // monthly gross minimum wage at the start of the year

  bool operator==(const AgiTablosu&) const = default;
};

// An insurance branch. `no` 0 is an unused row; isKazasi 1: the work-accident premium is added to the employer rate.
struct HesapTuru {
  std::uint8_t no = 0;
  std::string ack;
  std::uint8_t isKazasi = 0;

  bool operator==(const HesapTuru&) const = default;
};
using HesapTurleri = std::array<HesapTuru, 50>;

// From `bastar` until the day before `bittar` the premium rules of era `uygulama` hold.
struct KanunSatiri {
  Tarih bastar;
  Tarih bittar;
  std::int16_t uygulama = 0;

  bool operator==(const KanunSatiri&) const = default;
};
using Kanunlar = std::vector<KanunSatiri>;

// An overtime line: wage multiplier, and a limit that is kept but not calculated with.
struct FazlaMesai {
  Tek oran;
  Tek limit;

  bool operator==(const FazlaMesai&) const = default;
};
using FazlaMesailer = std::array<FazlaMesai, 3>;

// What the flags of an earning or allowance line say.
namespace bayrak {
constexpr std::uint8_t Acik = 1;   // open for entry on the payroll screen
constexpr std::uint8_t Ssk = 2;    // enters the social-security base
constexpr std::uint8_t Gv = 4;     // enters the income-tax base
constexpr std::uint8_t Dv = 8;     // enters the stamp-duty base
constexpr std::uint8_t Muaf = 16;  // exempt by its rule (allowances only)
}  // namespace bayrak

constexpr int KazancSayisi = 9;   // ng ht ui rt mi ha fm1 fm2 fm3
constexpr int YardimSayisi = 11;  // yrd01 … yrd11

struct KazancBayraklari {
  std::array<std::uint8_t, KazancSayisi> k{};
  std::array<std::uint8_t, YardimSayisi> y{};

  bool operator==(const KazancBayraklari&) const = default;
};

// How a template allowance is spread over the days of a person.
enum class SablonTipi : std::uint8_t { Sabit = 0, ToplamGun = 1, FiiliGun = 2 };
inline constexpr std::array<std::string_view, 3> SablonTipAdlari{"Sabit", "Toplam Gun", "Fiili Gün"};

// The month that most of the staff works, entered once.
struct Sablon {
  std::array<Tek, KazancSayisi> SablonGun{};
  std::array<Tutar, YardimSayisi> SablonYardim{};
  std::array<std::uint8_t, YardimSayisi> SablonYardimTip{};  // SablonTipi; other values act as Sabit

  bool operator==(const Sablon&) const = default;
};

// All that the law sets for a month.
struct YasalParametreler {
  YasalOranlar oranlar;
  GvTablosu gv;
  AgiTablosu agi;
  HesapTurleri hesapTurleri;
  Kanunlar kanunlar;

  bool operator==(const YasalParametreler&) const = default;
};

// The allowance as the rules read it: a base below 100 stands for none, and the minimum wage takes its place.
AgiTablosu AgiTabaniIle(AgiTablosu agi, Tutar asgariUcret);

// Built-in tables, used where a file is absent or broken.
HesapTurleri VarsayilanHesapTurleri();
Kanunlar VarsayilanKanunlar();
FazlaMesailer VarsayilanFazlaMesailer();
KazancBayraklari VarsayilanKazancBayraklari();  // earnings; all allowances 0
Sablon VarsayilanSablon();                      // 26 days worked, 4 rest days

// The premium rules in force in a month: code of the first row that covers the month's first day (`bittar` itself is
// outside); 0 when none does. 10.2008 -> 4.
int UygulamaBul(const Kanunlar& kanunlar, int ay, int yil);

// Work-accident premium rate of the company, percent: (sinif + 1) / 2 + 0.5, less 0.2 for the low hazard degree
// (tehlike 1), plus 0.2 for the high one (2), held between 1 and 6.5. Law 506, article 73; law 5510, article 83.
// tehlike 1, sinif 1 -> 1.3; sinif 20 -> 6.5.
Tek TehlikeOrani(int tehlike, double sinif);

// The company's hazard class and degree as its card offers them; the position is what is stored.
inline constexpr std::array<std::string_view, 3> TehlikeSiniflari{"Normal", "Alt", "Üst"};
inline constexpr std::array<std::string_view, 12> TehlikeDereceleri{"1", "2", "3", "4",  "5",  "6",
                                                                    "7", "8", "9", "10", "11", "12"};

}  // namespace belvani
