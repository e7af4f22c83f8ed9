#include "payroll/hazirlik/parametredeposu.h"

namespace belvani {
namespace {

// Six zeros were dropped on 01.01.2005; books before that in the old lira have no decimals.
Lira DefterLirasi(const Oturum& o) {
  constexpr int YeniLiraYili = 2005;
  return o.firma.firmayil < YeniLiraYili && o.firma.paraonda == 0 ? Lira::Eski : Lira::Yeni;
}

}  // namespace

void ParametreDeposu::YasalYukle(const std::string& dataPath) {
  yasal = YasalDosyalariYukle(dataPath, yasal).deger;
  ++yasalSurumu;
}

Durum ParametreDeposu::DosyaIndir(const Oturum& o, ParametreDosyasi dosya, const IndirmeSiniri& sinir) {
  const auto kaynak = ParametreAdresi(o.firma.firmayil, o.firma.firmaay, DefterLirasi(o));
  if (!kaynak) return kaynak.Kusuru();
  if (auto durum = ParametreDosyasiIndir(o.DataPath, dosya, *kaynak, sinir); !durum) return durum;
  YasalYukle(o.DataPath);
  return Tamam();
}

}  // namespace belvani
