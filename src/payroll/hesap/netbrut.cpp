#include "payroll/hesap/netbrut.h"

#include "payroll/hesap/damga.h"
#include "payroll/hesap/vergi.h"

namespace belvani {
namespace {

// What is left of a gross of `brut`.
Tutar BruttenNet(const GvTablosu& tablo, Tutar brut, const NettenBrutKosullari& k, Yuvarlayici yuvarla) {
  const Tutar ssk = yuvarla(Yuzde(std::min(brut, k.SskTavan).Sayi(), k.oran));
  const Tutar matrah = yuvarla(brut - ssk);
  const Tutar vergidenSonra = yuvarla(matrah - yuvarla(GvHesapla(tablo, k.devmatrah, matrah)));
  return yuvarla(vergidenSonra - yuvarla(brut.Sayi() * k.damgaoran / 1000));
}

}  // namespace

Tutar NettenBrut(const GvTablosu& tablo, Tutar net, const NettenBrutKosullari& k) {
  const Yuvarlayici yuvarla(k.paraonda);
  constexpr int UstSinirKati = 5;
  Tutar ust = UstSinirKati * net;
  Tutar alt;
  for (;;) {
    const Tutar orta = yuvarla((ust.Sayi() + alt.Sayi()) / 2);
    const Tutar oncekiUst = ust;
    const Tutar oncekiAlt = alt;
    const Tutar kalan = BruttenNet(tablo, orta, k, yuvarla);
    if (kalan > net) ust = yuvarla(orta);
    if (kalan < net) alt = yuvarla(orta);
    // Bounds that a pass leaves as they were would be left so for ever.
    const bool duruyor = ust == oncekiUst && alt == oncekiAlt;
    if (kalan == net || alt >= ust || duruyor) return yuvarla(orta);
  }
}

}  // namespace belvani
