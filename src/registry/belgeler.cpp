#include "registry/belgeler.h"

#include "deductions/ogibelgeleri.h"
#include "declarations/bildirimbelgeleri.h"
#include "documents/bordrobelgeleri.h"
#include "severance/kidembelgeleri.h"
#include "notices/bildirimbelgeleri.h"

namespace belvani {
namespace {

using OdaBelgeleri = std::span<const BelgeTanimi> (*)();
constexpr OdaBelgeleri Odalar[] = {
    BordroBelgeleri,  // the month's payroll
    KidemBelgeleri,   // severance and notice
    BordroBelgeleri,    // the month's payroll
    BildirimBelgeleri,  // lists for the labour office and the insurance unit
    OgiBelgeleri,     // the special-expense refund
    BordroBelgeleri,    // the month's payroll
    BildirimBelgeleri,  // for the social-security body
};

const std::vector<BelgeTanimi>& Tablo() {
  static const std::vector<BelgeTanimi> tablo = [] {
    std::vector<BelgeTanimi> hepsi;
    for (const OdaBelgeleri oda : Odalar) hepsi.insert(hepsi.end(), oda().begin(), oda().end());
    return hepsi;
  }();
  return tablo;
}

}  // namespace

std::span<const BelgeTanimi> Belgeler() {
  return Tablo();
}

const BelgeTanimi* BelgeBul(std::string_view ekran) {
  const auto yer = std::ranges::find(Tablo(), ekran, &BelgeTanimi::ekran);
  return yer == Tablo().end() ? nullptr : &*yer;
}

}  // namespace belvani
