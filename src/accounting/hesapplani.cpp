#include "accounting/hesapplani.h"

#include <algorithm>

#include "core/csv.h"
#include "core/dosya.h"
#include "core/store/satirlar.h"
#include "core/veridizini.h"

namespace belvani {
namespace {

std::string Hesplan::*AramaUyesi(HesapAramaAlani alan) {
  switch (alan) {
    case HesapAramaAlani::Kod:
      return &Hesplan::kod;
    case HesapAramaAlani::Isim:
      return &Hesplan::isim;
    case HesapAramaAlani::Yisim:
      return &Hesplan::yisim;
  }
  return &Hesplan::kod;
}

}  // namespace

Sonuc<std::vector<Hesplan>> HazirHesapPlani() {
  const std::string yol = VeriDizini("hesapplani") + "hesapplani.csv";
  const auto baytlar = DosyaOku(yol);
  if (!baytlar) return Kusur{"Hesap planı okunamadı: " + yol};
  const auto csv = CsvOku(*baytlar);
  if (!csv) return Kusur{yol + ": " + csv.KusurMetni()};
  std::vector<Hesplan> plan;
  for (const CsvSatiri& satir : csv->satirlar) {
    if (satir.hucreler.size() != 2) return Kusur{yol + ": satırlarda kod ve isim olmalı"};
    plan.push_back({.kod = satir.hucreler[0], .isim = satir.hucreler[1], .yisim = {}});
  }
  return plan;
}

HesapPlani::HesapPlani(std::vector<Hesplan> hesaplar) : hesaplar_(std::move(hesaplar)) {
  std::ranges::stable_sort(hesaplar_, Kucuk{}, &Hesplan::kod);
  for (std::size_t i = 0; i < hesaplar_.size(); ++i) yerler_.emplace(hesaplar_[i].kod, i);
}

HesapPlani HesapPlani::Oku(Motor& motor) {
  return HesapPlani(KayitlariOku<Hesplan>(motor));
}

const Hesplan* HesapPlani::Bul(std::string_view kod) const {
  const auto yer = yerler_.find(kod);
  return yer == yerler_.end() ? nullptr : &hesaplar_[yer->second];
}

std::string HesapPlani::Adi(std::string_view kod) const {
  const Hesplan* hesap = Bul(kod);
  return hesap == nullptr ? std::string() : hesap->isim;
}

std::vector<const Hesplan*> HesapPlani::Ara(HesapAramaAlani alan, std::string_view metin, bool icinde) const {
  const std::string aranan = BuyukHarf(metin);
  std::vector<const Hesplan*> bulunan;
  for (const Hesplan& hesap : hesaplar_) {
    const auto yer = BuyukHarf(hesap.*AramaUyesi(alan)).find(aranan);
    if (yer == 0 || (icinde && yer != std::string::npos)) bulunan.push_back(&hesap);
  }
  return bulunan;
}

}  // namespace belvani
