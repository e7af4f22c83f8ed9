#include "payroll/hesap/ucret.h"

#include "payroll/hesap/netbrut.h"
#include "payroll/hesap/oran.h"

namespace belvani {
namespace {

Tutar AyaCevir(const Sicil& s, Tek IsSaati) {
  switch (UcretAgs(s.ucretags)) {
    case UcretAgs::Gunluk:
      return Tutar(s.ucret.Sayi() * AyGunu30);
    case UcretAgs::Saatlik:
      return Tutar(s.ucret.Sayi() * AyGunu30 * IsSaati.Sayi());
    case UcretAgs::Aylik:
      break;
  }
  return s.ucret;
}

Tutar NettenBrute(const BordroGirdi& g, Tutar net) {
  const Brd& k = g.giris;
  const double prim = HuzurHakkiMi(*g.sicil) ? 0 : Tek(k.sskiscior.Sayi() + k.issiziscior.Sayi()).Sayi();
  return NettenBrut(g.yasal->gv, net,
                    {prim, k.damgaveror.Sayi(), k.devgvmatrah, g.yasal->oranlar.SskTavan, g.paraonda});
}

}  // namespace

Tutar AylikBrutUcret(const BordroGirdi& g, Yuvarlayici yuvarla) {
  const Tutar cirakTabani = Tutar(g.yasal->oranlar.AsgariUcret.Sayi() / 3);
  Tutar ucret = AyaCevir(*g.sicil, g.IsSaati);
  switch (UcretTipi(g.sicil->ucrettipi)) {
    case UcretTipi::Net:
      ucret = NettenBrute(g, ucret);
      break;
    case UcretTipi::Asgari:
      ucret = CirakMi(*g.sicil) ? cirakTabani : g.yasal->oranlar.AsgariUcret;
      break;
    case UcretTipi::Brut:
      break;
  }
  if (CirakMi(*g.sicil)) ucret = std::max(ucret, cirakTabani);
  return yuvarla(ucret);
}

}  // namespace belvani
