#include "printing/metincizimi.h"

#include <algorithm>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr double IncMm = 25.4;
constexpr double NormalHarfMm = IncMm / 10;
constexpr double SikisikHarfMm = IncMm / 17.1;
constexpr double SatirMm = IncMm / 6;
constexpr double EnDarKagitMm = 8.5 * IncMm;
constexpr double MetinPunto = 11;

}  // namespace

std::vector<std::string_view> Parcala(std::string_view metin, char ayrac) {
  std::vector<std::string_view> parcalar;
  for (std::size_t son; (son = metin.find(ayrac)) != std::string_view::npos; metin.remove_prefix(son + 1))
    parcalar.push_back(metin.substr(0, son));
  parcalar.push_back(metin);
  return parcalar;
}

std::size_t EnUzunSatir(std::string_view metin) {
  std::size_t harf = 0;
  for (const std::string_view satir : Parcala(metin, '\n')) harf = std::max(harf, HarfSayisi(satir));
  return harf;
}

MetinCizimi::MetinCizimi(std::string metin, int satirSayisi) : metin_(std::move(metin)) {
  if (!metin_.empty()) sayfalar_ = Parcala(metin_, '\f');
  const std::size_t harf = EnUzunSatir(metin_);
  const double harfMm = harf > NormalSatirHarfi ? SikisikHarfMm : NormalHarfMm;
  yazi_ = {.punto = MetinPunto, .aile = YaziAilesi::EsEnli};
  yazi_.genislik = harfMm / MetinEni("0", yazi_);
  std::ptrdiff_t satirlar = satirSayisi;
  for (const auto sayfa : sayfalar_) satirlar = std::max(satirlar, std::ranges::count(sayfa, '\n'));
  kagit_ = {std::max(EnDarKagitMm, double(harf) * harfMm + 2 * KenarMm), double(satirlar) * SatirMm};
}

void MetinCizimi::SayfaCiz(int no, Tuval& tuval) const {
  tuval.SayfaBasla(kagit_);
  double y = 0;
  for (const std::string_view satir : Parcala(sayfalar_[std::size_t(no - 1)], '\n')) {
    tuval.Metin({KenarMm, y}, satir, yazi_);
    y += SatirMm;
  }
  tuval.SayfaBitir();
}

}  // namespace belvani
