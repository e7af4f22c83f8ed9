// What the figures of the law say of themselves: whether they can be calculated with at all, and in what they differ
// from those published for a month.
//
// Example: the set of July 2009 held against January 2009 differs in minimum wage (693.00, published 666.00), floor,
// ceiling and severance ceiling of `yasal2.dat`; the tax table of both months is the same.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/sonuc.h"
#include "payroll/parametre/mevzuat.h"

namespace belvani {

// A month of the law's figures.
struct MevzuatAyi {
  int yil = 0;
  int ay = 0;

  std::string Metin() const;  // "Temmuz 2009"
  std::string Iso() const;    // "2009-07"
  static std::optional<MevzuatAyi> IsoOku(std::string_view metin);
  bool operator==(const MevzuatAyi&) const = default;
};

// The files that change from month to month; the branches (hestur.dat) and eras (kanun.dat) are those of all months.
enum class MevzuatBolumu { Oranlar, Vergi, Agi };
inline constexpr std::array MevzuatBolumleri{MevzuatBolumu::Oranlar, MevzuatBolumu::Vergi, MevzuatBolumu::Agi};

// "yasal2.dat", "gvtbl.dat", "agitbl.dat".
std::string_view BolumDosyasi(MevzuatBolumu bolum);

// Figures that no law can have: no minimum wage or one outside 100 to 10,000 (a million times that in old lira), no
// floor, a ceiling below it, rates outside 0 to 100 (stamp duty: per thousand), a tax table without a bracket or with
// limits that do not ascend. One text each; none: they can be calculated with.
std::vector<std::string> RakamKusurlari(const YasalParametreler& p);
std::vector<std::string> RakamKusurlari(const YasalParametreler& p, MevzuatBolumu bolum);

// A million times the amounts of today: the books were kept in the lira of before 2005.
bool EskiLiraMi(const YasalParametreler& p);

struct RakamFarki {
  MevzuatBolumu bolum;
  std::string etiket;      // as its screen calls it
  std::string kurulu;      // as it is
  std::string yayimlanan;  // as published

  std::string Metin() const { return etiket + ": " + kurulu + " (yayımlanan " + yayimlanan + ")"; }
};

// What differs from the published figures. A figure that was published as zero, or that a published branch lacks, is
// the user's own and is not compared; nor is the limit of the last bracket, which the law leaves open.
std::vector<RakamFarki> RakamFarklari(const YasalParametreler& kurulu, const YasalParametreler& yayimlanan);

// The published figures of a month, in the lira of the installed ones.
Sonuc<YasalParametreler> YayimlananRakamlar(const YasalParametreler& kurulu, MevzuatAyi ay);
// The first published month that fits.
std::optional<MevzuatAyi> IlkUyanAy(const YasalParametreler& kurulu,
                                    const std::function<bool(const YasalParametreler&)>& uyar);
// The first month for which this part was published as it is; nothing when it is nobody's but the user's.
std::optional<MevzuatAyi> YayimlandigiAy(const YasalParametreler& kurulu, MevzuatBolumu bolum);

}  // namespace belvani
