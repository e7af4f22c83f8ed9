// Severance pay (kıdem tazminatı) and notice pay (ihbar tazminatı) of one person who leaves on a day.
//
// Law: severance: labour law 1475, article 14: thirty days' gross wage for each year of service, its days pro rata, at
// most the ceiling of the half year in which he leaves; free of income tax (income tax act 193, article 25), stamp duty
// is taken. Notice: labour law 4857, article 17: the wage of the notice days without a ceiling; income tax on top of
// the year's base, and stamp duty. Whether tax and duty are taken at all, the company says by the flags of one
// allowance line, for both pays.
//
// Days are whole, amounts lira, stamp duty per thousand. Values run in double from left to right and are money-rounded
// at the two duties alone; whoever shows them rounds then (Gosterilen).
//
// Example (ceiling 2,365.16, 6 per thousand): 02.08.2008 to 01.08.2009 at 1,800.00 a month: 365 days, of a year of 360
// days 360; severance 360 × (60.00 × 30 / 360) = 1,800.00, duty 10.80, net 1,789.20. Notice: month 13, 30 days,
// 1,800.00; with 12,600.00 taxed before and brackets of 8,700 and 22,000 at 15 and 20 %: tax 360.00, duty 10.80.
#pragma once

#include <optional>

#include "core/tables/sicil.h"
#include "core/yuvarlama.h"
#include "payroll/hesap/iz.h"
#include "payroll/parametre/parametreler.h"
#include "payroll/parametre/tazminatparametreleri.h"

namespace belvani {

// What is the same for everyone who leaves a company.
struct KidemKurallari {
  const YasalParametreler* yasal = nullptr;  // must outlive the rules
  KidemParametreleri kidem;
  IhbarSureleri ihbar = VarsayilanIhbarSureleri;
  Tek IsSaati{8};  // hours of a working day, at least 1
  int paraonda = 2;
};

// Base and tax of the months before the one in which he leaves, in its year.
struct KidemMatrahi {
  Tutar dvgvmatrah;
  Tutar dvgvtutar;

  bool operator==(const KidemMatrahi&) const = default;
};

struct KidemGirdisi {
  Tarih girtar;  // both are days
  Tarih ciktar;
  Tutar AylikUcret;             // gross
  std::optional<int> IhbarGun;  // the user's own; nothing: those of the table
  KidemMatrahi matrah;
  Tutar KidemTavan;            // ceiling of a month's wage
  std::uint8_t bayraklar = 0;  // of the allowance line that taxes both pays (bayrak::Gv, bayrak::Dv)
  bool kidemHaric = false;     // this side is left out
  bool ihbarHaric = false;
};

struct KidemTutarlari {
  double gunlukUcret = 0;
  double gunlukEsas = 0;   // the same, cut at the ceiling
  double gunlukKidem = 0;  // severance for a day of service
  double brutKidem = 0;
  Tutar kidemDamga;
  double netKidem = 0;
  double brutIhbar = 0;
  Tutar ihbarGelirVergisi;
  Tutar ihbarDamga;
  double netIhbar = 0;
  double netToplam = 0;  // of the sides that are not left out
};

struct KidemSonucu {
  int CalismaGunu = 0;
  double KidemYil = 0;
  int IhbarGun = 0;
  std::optional<KidemTutarlari> tutarlar;  // nothing without a wage
};

// The gross monthly wage of a person as his card agrees it: hourly, daily or monthly, gross, net or the minimum wage.
// A net one is turned into gross on top of the year's base. Throws TutarTasmasi.
// Example: 4.00 an hour, 7.5 hours a day -> 900.00.
Tutar UcretYukle(const Sicil& sicil, const KidemKurallari& kurallar, const KidemMatrahi& matrah, Iz* iz = nullptr);

// Days of service as the company's year counts them; below 1 when he leaves before he has come.
int KidemGunu(const KidemParametreleri& kidem, Tarih girtar, Tarih ciktar);

// Notice days for so many days of service. The month count runs one ahead of the days worked: 180 days are month 7.
int IhbarGunu(const IhbarSureleri& sureler, int CalismaGunu);

// With `iz` every step is added to it. Throws TutarTasmasi when an amount leaves its range.
KidemSonucu KidemHesapla(const KidemKurallari& kurallar, const KidemGirdisi& girdi, Iz* iz = nullptr);

// An amount as sheets show it: rounded half away from zero to the company's decimals. 59.178 -> 59.18.
Tutar Gosterilen(double tutar, int paraonda);

}  // namespace belvani
