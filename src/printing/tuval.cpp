#include "printing/tuval.h"

#include "core/turkce.h"

namespace belvani {

YaziAilesi AileBul(std::string_view ad) {
  const std::string kucuk = KucukHarf(ad);
  const auto var = [&](std::string_view parca) { return kucuk.find(parca) != std::string::npos; };
  if (var("cour") || var("mono") || var("consol") || var("fixed")) return YaziAilesi::EsEnli;
  if (var("times") || (var("serif") && !var("sans")) || var("georgia")) return YaziAilesi::Tirnakli;
  return YaziAilesi::Duz;
}

std::string_view SiganMetin(std::string_view metin, double en, const YaziBicimi& yazi) {
  while (!metin.empty() && MetinEni(metin, yazi) > en) metin = IlkHarfler(metin, HarfSayisi(metin) - 1);
  return metin;
}

void MetinKutuya(Tuval& tuval, const Dikdortgen& kutu, std::string_view metin, YaziBicimi yazi, MetinHizasi hiza) {
  if (metin.empty() || kutu.en <= 0) return;
  double en = MetinEni(metin, yazi);
  if (en > kutu.en) {
    yazi.genislik *= kutu.en / en;
    en = kutu.en;
  }
  Nokta yer{kutu.x, kutu.y + (kutu.boy - SatirBoyu(yazi)) / 2};
  if (hiza == MetinHizasi::Sag) yer.x += kutu.en - en;
  if (hiza == MetinHizasi::Orta) yer.x += (kutu.en - en) / 2;
  tuval.Metin(yer, metin, yazi);
}

}  // namespace belvani
