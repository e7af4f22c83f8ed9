// Deductions from the income-tax base: disability, private pension and insurance, military service.
//
// Disability: income tax act (193), article 31. Pension and insurance contributions: article 63/3 as amended by law
// 4697: up to 10 % of the month's gross (personal insurance alone 5 %) and, over the year, the yearly minimum wage.
// They lower the base that is taxed this month, not the base carried into later months.
// Example: personal insurance of 100.00 on a gross of 1,000.00 -> limit 50.00, deducted 50.00.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "core/tables/indir.h"
#include "core/yuvarlama.h"

namespace belvani {

enum class IndirimYeri : std::uint8_t {
  Hicbiri = 0,
  OzelEmeklilik = 1,
  OzelSigorta = 2,
  OzelEmeklilikSigorta = 3,
  Askerlik = 4,
};

// As the screen lists them; the position is what is stored.
inline constexpr std::array<std::string_view, 5> IndirimYerleri{"Hiçbiri", "Özel Emeklilik", "Özel Sigorta",
                                                                "Özel Emeklilik+Sigorta", "Askerlik"};
static_assert(ListeyeUyar(indir::indtip, IndirimYerleri.size()));

// Rows of the three lines; none: not defined.
using IndirimTanimlari = std::array<std::optional<Indir>, 3>;

struct IndirimGirdisi {
  const Indir& tanim;  // the deduction's row
  Tutar kisiTutari;    // the person's own amount; 0: the row's fixed amount, and with that 0 its rate
  Tutar gvmatrah;
  Tutar brutkaz;      // day lines, overtime and allowances
  Tutar yilToplami;   // deducted in all months of the year, this one too when it is stored
  Tutar MuafTavan;    // yearly ceiling
  Tutar KalanMatrah;  // taxable base left
};

// The month's deduction, at most what is left of the base. Once the year's sum passes the ceiling, the whole month's
// deduction falls away and not only the excess.
Tutar IndirimHesapla(const IndirimGirdisi& g, Yuvarlayici yuvarla);

// Disability deduction for the days of the month: monthly amount of the degree / 30 × days, at most what is left.
Tutar SakatlikIndirimi(Tutar aylik, int SskGun, Tutar KalanMatrah, Yuvarlayici yuvarla);

}  // namespace belvani
