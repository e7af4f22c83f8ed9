#include "payroll/hesap/ozelgider.h"

#include <algorithm>

#include "payroll/hesap/oran.h"

namespace belvani {
namespace {

OzelGiderSonucu EskiKural(const GvTablosu& tablo, Tek oran, const OzelGiderGirdisi& g, Yuvarlayici yuvarla) {
  const Tutar ucteBir = yuvarla(g.ogimatrah.Sayi() / 3);
  const Tutar enCok = yuvarla(Yuzde(g.gvmatrah.Sayi(), oran.Sayi()));
  OzelGiderSonucu s;
  s.indirim = std::min(enCok, ucteBir);
  s.matrah = yuvarla(g.gvmatrah - s.indirim);
  s.vergi = yuvarla(OzelGvHesapla(tablo, s.matrah, yuvarla));
  s.ogitutar = g.gvtutar - s.vergi;
  return s;
}

OzelGiderSonucu YeniKural(const GvTablosu& tablo, const OzelGiderGirdisi& g, Yuvarlayici yuvarla) {
  OzelGiderSonucu s;
  s.indirim = s.matrah = IndirimeEsas(TutarCevir(g.gvmatrah, g.yil, yuvarla), TutarCevir(g.ogimatrah, g.yil, yuvarla));
  s.vergi = s.ogitutar = yuvarla(OzelGvHesapla(tablo, s.matrah, yuvarla));
  return s;
}

}  // namespace

Tutar OzelGvHesapla(const GvTablosu& tablo, Tutar matrah, Yuvarlayici yuvarla) {
  Tutar vergi;
  Tutar altSinir;
  for (std::size_t i = 0; i < tablo.GvLimit.size(); ++i) {
    const Tutar sinir = tablo.GvLimit[i];
    if (sinir <= Tutar()) continue;
    if (matrah > altSinir) {
      const Tutar dilim = std::min(matrah, sinir) - altSinir;
      vergi += yuvarla(Yuzde(dilim.Sayi(), tablo.GvOran[i].Sayi()));
    }
    altSinir = sinir;
  }
  return vergi;
}

bool OzelGvTablosuBos(const GvTablosu& tablo) {
  return std::ranges::all_of(tablo.GvLimit, [](Tutar sinir) { return sinir <= Tutar(); });
}

OzelGiderSonucu OzelGiderHesapla(const GvTablosu& tablo, Tek oran, const OzelGiderGirdisi& girdi, Yuvarlayici yuvarla) {
  return EskiOzelGiderKurali(girdi.yil) ? EskiKural(tablo, oran, girdi, yuvarla) : YeniKural(tablo, girdi, yuvarla);
}

}  // namespace belvani
