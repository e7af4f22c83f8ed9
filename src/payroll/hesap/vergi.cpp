#include "payroll/hesap/vergi.h"

#include "payroll/hesap/oran.h"

namespace belvani {

Tutar VergiBul(const GvTablosu& tablo, Tutar matrah) {
  Tutar vergi;
  Tutar oncekiSinir;
  for (std::size_t i = 0; i < tablo.GvLimit.size(); ++i) {
    const Tutar sinir = tablo.GvLimit[i];
    if (sinir <= Tutar()) continue;
    const Tutar dilim = std::min(sinir, matrah) - oncekiSinir;
    vergi += Tutar(Yuzde(dilim.Sayi(), tablo.GvOran[i].Sayi()));
    if (sinir > matrah) break;
    oncekiSinir = sinir;
  }
  return vergi;
}

Tutar GvHesapla(const GvTablosu& tablo, Tutar devmatrah, Tutar matrah) {
  return VergiBul(tablo, devmatrah + matrah) - VergiBul(tablo, devmatrah);
}

std::vector<DilimMatrahi> DilimMatrahlari(const GvTablosu& tablo, Tutar devmatrah, Tutar matrah) {
  std::vector<DilimMatrahi> dilimler;
  const Tutar son = devmatrah + matrah;
  Tutar alt;
  for (std::size_t i = 0; i < tablo.GvLimit.size(); ++i) {
    const Tutar ust = tablo.GvLimit[i];
    if (ust <= Tutar()) continue;
    const Tutar dilimde = std::min(ust, son) - std::max(alt, devmatrah);
    if (dilimde > Tutar()) dilimler.push_back({alt, ust, dilimde, tablo.GvOran[i]});
    if (ust > son) break;
    alt = ust;
  }
  return dilimler;
}

}  // namespace belvani
