#include "payroll/hesap/indirim.h"

#include "payroll/hesap/oran.h"

namespace belvani {
namespace {

Tutar EmeklilikVeyaSigorta(const IndirimGirdisi& g, Yuvarlayici yuvarla) {
  Tutar indirim = g.kisiTutari;
  if (indirim == Tutar()) indirim = g.tanim.sabit;
  if (indirim == Tutar()) indirim = yuvarla(Yuzde(g.tanim.oran.Sayi(), g.gvmatrah.Sayi()));
  // A tenth of the gross, for personal insurance a twentieth.
  const double bolen = IndirimYeri(g.tanim.indtip) == IndirimYeri::OzelSigorta ? 20 : 10;
  indirim = std::min(indirim, yuvarla(g.brutkaz.Sayi() / bolen));
  return g.yilToplami + indirim > g.MuafTavan ? Tutar() : indirim;
}

Tutar SinirsizIndirim(const IndirimGirdisi& g, Yuvarlayici yuvarla) {
  switch (IndirimYeri(g.tanim.indtip)) {
    case IndirimYeri::OzelEmeklilik:
    case IndirimYeri::OzelSigorta:
    case IndirimYeri::OzelEmeklilikSigorta:
      return EmeklilikVeyaSigorta(g, yuvarla);
    case IndirimYeri::Askerlik:
      return g.kisiTutari;
    case IndirimYeri::Hicbiri:
      break;
  }
  return Tutar();
}

}  // namespace

Tutar IndirimHesapla(const IndirimGirdisi& g, Yuvarlayici yuvarla) {
  return std::min(SifirdanAzOlmaz(SinirsizIndirim(g, yuvarla)), g.KalanMatrah);
}

Tutar SakatlikIndirimi(Tutar aylik, int SskGun, Tutar KalanMatrah, Yuvarlayici yuvarla) {
  return std::min(yuvarla(aylik.Sayi() / AyGunu30 * SskGun), KalanMatrah);
}

}  // namespace belvani
