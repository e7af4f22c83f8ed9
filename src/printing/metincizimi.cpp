#include "printing/metincizimi.h"

#include <algorithm>
#include <ranges>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr double IncMm = 25.4;
constexpr double NormalHarfMm = IncMm / 10;
constexpr double SikisikHarfMm = IncMm / 17.1;
constexpr double SatirMm = IncMm / 6;
constexpr double EnDarKagitMm = 8.5 * IncMm;
constexpr double MetinPunto = 11;

template <class Islev>
void Ayir(std::string_view metin, char ayrac, Islev islev) {
  for (const auto parca : std::views::split(metin, ayrac)) islev(std::string_view(parca.begin(), parca.end()));
}

}  // namespace

std::size_t EnUzunSatir(std::string_view metin) {
  std::size_t harf = 0;
  Ayir(metin, '\n', [&](std::string_view satir) { harf = std::max(harf, HarfSayisi(satir)); });
  return harf;
}

MetinCizimi::MetinCizimi(std::string metin, int satirSayisi) : metin_(std::move(metin)) {
  if (!metin_.empty()) Ayir(metin_, '\f', [&](std::string_view sayfa) { sayfalar_.push_back(sayfa); });
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
  Ayir(sayfalar_[std::size_t(no - 1)], '\n', [&](std::string_view satir) {
    tuval.Metin({KenarMm, y}, satir, yazi_);
    y += SatirMm;
  });
  tuval.SayfaBitir();
}

}  // namespace belvani
