#include "payroll/hesap/sendikaaidati.h"

#include "payroll/hesap/oran.h"

namespace belvani {
namespace {

Tutar HamAidat(const Sendika& sendika, const SendikaGirdisi& g, Yuvarlayici yuvarla) {
  const auto orani = [&](Tutar t) { return PrimPayi(t, sendika.oran, yuvarla); };
  switch (KesintiYeri(sendika.yer)) {
    case KesintiYeri::NetOdenen:
      return orani(g.NetOdenen);
    case KesintiYeri::SskMatrahi:
      return orani(g.sskmatrah);
    case KesintiYeri::BrutKazanc:
      return orani(g.brutkaz);
    case KesintiYeri::Ucret:
      return orani(g.ucret);
    case KesintiYeri::Sabit:
      break;
  }
  return sendika.sabit;
}

}  // namespace

Tutar SendikaHesapla(const Sendika& sendika, const SendikaGirdisi& g, Yuvarlayici yuvarla) {
  Tutar aidat = HamAidat(sendika, g, yuvarla);
  if (sendika.taban > Tutar()) aidat = std::max(aidat, sendika.taban);
  if (sendika.tavan > Tutar()) aidat = std::min(aidat, sendika.tavan);
  return g.NetOdenen < aidat ? Tutar() : aidat;
}

}  // namespace belvani
