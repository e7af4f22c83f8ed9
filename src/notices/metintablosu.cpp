#include "notices/metintablosu.h"

#include <algorithm>

#include "core/turkce.h"

namespace belvani {
namespace {

template <class Bicim>
std::string SatirYap(const std::vector<int>& enler, const std::vector<std::string>& hucreler, Bicim bicim) {
  std::string satir = "│";
  for (std::size_t i = 0; i < enler.size(); ++i)
    satir += bicim(i < hucreler.size() ? std::string_view(hucreler[i]) : std::string_view(), enler[i]) + "│";
  return satir;
}

std::string Temiz(std::string_view metin, int en) {
  return std::string(IlkHarfler(DenetimsizMetin(metin), std::size_t(en)));
}

}  // namespace

std::string Doldurulmus(std::string_view metin, int en) {
  std::string dolu = Temiz(metin, en);
  dolu.append(std::size_t(en) - HarfSayisi(dolu), ' ');
  return dolu;
}

std::string Ortalanmis(std::string_view metin, int en) {
  const std::string temiz = Temiz(metin, en);
  const int sol = (en - int(HarfSayisi(temiz))) / 2;
  return std::string(std::size_t(sol), ' ') + Doldurulmus(temiz, en - sol);
}

std::string SayfaMetni(const std::vector<std::string>& satirlar) {
  std::string metin;
  for (const std::string& satir : satirlar) metin += satir.substr(0, satir.find_last_not_of(' ') + 1) + '\n';
  return metin;
}

std::string MetinTablosu::Satir(const std::vector<std::string>& hucreler) const {
  return SatirYap(enler_, hucreler, Doldurulmus);
}

std::string MetinTablosu::OrtaliSatir(const std::vector<std::string>& hucreler) const {
  return SatirYap(enler_, hucreler, Ortalanmis);
}

std::string MetinTablosu::Cizgi(std::string_view sol, std::string_view orta, std::string_view sag) const {
  std::string satir(sol);
  for (std::size_t i = 0; i < enler_.size(); ++i) {
    if (i > 0) satir += orta;
    for (int n = 0; n < enler_[i]; ++n) satir += "─";
  }
  return satir + std::string(sag);
}

}  // namespace belvani
