#include "payroll/parametre/ozelgiderparametreleri.h"

#include "payroll/parametre/uyeler.h"

namespace belvani {
namespace {

constexpr int EnErkenYil = 1990;

template <auto uye>
std::optional<Kusur> SinirKusuru(double sayi, double enAz) {
  constexpr auto tanim = UyeTanimi<uye>();
  if (sayi >= enAz && sayi <= tanim.enCok) return std::nullopt;
  return KuralKusuru(std::string(tanim.etiket) + " " + std::to_string(int(enAz)) + " ile " +
                         std::to_string(int(tanim.enCok)) + " arasında olmalı",
                     {typeid(OzelGiderParametreleri), tanim.ad});
}

}  // namespace

std::optional<Kusur> OzelGiderParametreKusuru(const OzelGiderParametreleri& p) {
  if (auto kusur = SinirKusuru<&OzelGiderParametreleri::oran>(p.oran.Sayi(), 0)) return kusur;
  if (auto kusur = SinirKusuru<&OzelGiderParametreleri::mahay>(p.mahay, 1)) return kusur;
  if (auto kusur = SinirKusuru<&OzelGiderParametreleri::mahyil>(p.mahyil, EnErkenYil)) return kusur;
  return SinirKusuru<&OzelGiderParametreleri::damga>(p.damga.Sayi(), 0);
}

}  // namespace belvani
