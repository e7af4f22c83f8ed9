#include "payroll/hesap/muafiyet.h"

#include "payroll/hesap/oran.h"

namespace belvani {

YardimTanimlari VarsayilanYardimlar() {
  static constexpr std::array<const char*, YardimSayisi> adlar{
      "Prim/İkramiye", "yemek",        "Aile Yardımı", "Çocuk Yardımı",   "Doğum Yardımı",  "Evlilik Yardımı",
      "Giyim Yardımı", "Ölüm Yardımı", "Yolluk",       "İhbar/Kasa Taz.", "Kıdem Tazminatı"};
  YardimTanimlari tanimlar;
  for (std::size_t i = 0; i < tanimlar.size(); ++i) {
    tanimlar[i].no = std::uint8_t(i + 1);
    tanimlar[i].adi = adlar[i];
  }
  return tanimlar;
}

Tutar MuafHesapla(const MuafiyetGirdisi& g, Tutar muaftutar, Yuvarlayici yuvarla) {
  constexpr int EnCokCocuk = 2;
  const double gunlukTaban = g.SskTaban.Sayi() / AyGunu30;
  const double oran = g.tanim.oran.Sayi();
  const auto sinirli = [&](Tutar sinir) { return muaftutar + std::min(yuvarla(g.tutar), sinir); };

  const auto sekil = MuafiyetSekli(g.tanim.indtip);
  if (sekil == MuafiyetSekli::FiiliGun) return g.ng > 0 ? sinirli(yuvarla(g.ng * gunlukTaban * oran / 100)) : muaftutar;
  if (g.SskGun < 1) return muaftutar;
  switch (sekil) {
    case MuafiyetSekli::ToplamGunCocuk:
      return sinirli(yuvarla(std::min(g.cocuk, EnCokCocuk) * gunlukTaban * oran / 100 * g.SskGun));
    case MuafiyetSekli::ToplamGun:
      return sinirli(yuvarla(gunlukTaban * oran / 100 * g.SskGun));
    case MuafiyetSekli::KazancOran:
      return yuvarla(Yuzde(g.tutar.Sayi(), oran));
    case MuafiyetSekli::Sabit:
      return sinirli(g.tanim.sabit);
    case MuafiyetSekli::Yok:
    case MuafiyetSekli::FiiliGun:
      break;
  }
  return muaftutar;
}

}  // namespace belvani
