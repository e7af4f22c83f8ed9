// A small report for the tests of the writers.
#pragma once

#include <string>
#include <vector>

#include "printing/kolonlar.h"

namespace belvani::test {

struct Kalem {
  std::string ad;
  Tarih gun = {};
  int adet = 0;
  Tutar tutar = {};
  Tutar birikmis = {};
  int grup = 0;
};

inline const Kolonlar<Kalem> kalemKolonlari{
    {{"Adı", "Ad"}, 10, [](auto& k) { return k.ad; }, KolonNiteligi::HerZaman},
    {"Gün", 8, [](auto& k) { return k.gun; }, KolonNiteligi::KisaTarih},
    {"Adet", 4, [](auto& k) { return k.adet; }, KolonNiteligi::Toplanir},
    {{"Toplam Tutar", "Tutar"}, 8, [](auto& k) { return k.tutar; }, KolonNiteligi::Toplanir},
    {"Birikmiş", 8, [](auto& k) { return k.birikmis; }},
    {"İmza", 6, [](auto&) { return Null{}; }},
};

inline Rapor KalemRaporu(const std::vector<Kalem>& kalemler) {
  Rapor rapor = RaporYap(kalemKolonlari, kalemler, 2, [](auto& onceki, auto& k) { return onceki.grup != k.grup; });
  rapor.baslik = "KALEM LİSTESİ";
  rapor.ekranBasligi = "Kalemler";
  return rapor;
}

}  // namespace belvani::test
