#include "registry/belgeler.h"

#include "declarations/sigortabelgeleri.h"
#include "deductions/ogibelgeleri.h"
#include "documents/bordrobelgeleri.h"
#include "notices/bildirimbelgeleri.h"
#include "severance/kidembelgeleri.h"

namespace belvani {
namespace {

using OdaBelgeleri = std::span<const BelgeTanimi> (*)();
constexpr OdaBelgeleri Odalar[] = {
    BordroBelgeleri,    // the month's payroll
    SigortaBelgeleri,   // premiums and missing days, for the social-security body
    BildirimBelgeleri,  // lists for the labour office and the insurance unit
    KidemBelgeleri,     // severance and notice
    OgiBelgeleri,       // the personal-expense refund
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
