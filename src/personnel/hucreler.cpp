#include "personnel/hucreler.h"

#include <algorithm>
#include <set>

#include "core/turkce.h"

namespace belvani {
namespace {

AktarimKolonu KolonBul(const std::vector<const TabloTanimi*>& tablolar, const std::string& baslik) {
  for (const TabloTanimi* tablo : tablolar)
    if (const AlanTanimi* alan = tablo->AlanBul(baslik)) return {tablo, alan};
  return {};
}

AktarimSatiri SatirCevir(const CsvTablosu& csv, const CsvSatiri& satir, AktarimDosyasi& dosya) {
  AktarimSatiri sonuc{satir.satirNo, {}};
  for (std::size_t i = 0; i < satir.hucreler.size(); ++i) {
    std::string kusur;
    Deger deger;
    if (const AlanTanimi* alan = dosya.kolonlar[i].alan; alan != nullptr)
      deger = MetindenDeger(*alan, satir.hucreler[i], kusur);
    if (!kusur.empty()) dosya.sorunlar.push_back({satir.satirNo, csv.basliklar[i], kusur});
    sonuc.degerler.push_back(std::move(deger));
  }
  return sonuc;
}

void AnahtarDenetle(AktarimDosyasi& dosya, std::string_view anahtar, AnahtarKurali kural) {
  const auto kucuk = [](const std::string& a, const std::string& b) { return TurkceKarsilastir(a, b) < 0; };
  std::set<std::string, decltype(kucuk)> gorulen(kucuk);
  for (const auto& satir : dosya.satirlar) {
    const std::string deger = dosya.Metin(satir, anahtar);
    if (dosya.Soylendi(satir.satirNo, anahtar)) continue;
    if (deger.empty() || deger == "0")
      dosya.sorunlar.push_back({satir.satirNo, std::string(anahtar), "boş bırakılamaz"});
    else if (!gorulen.insert(deger).second && kural == AnahtarKurali::Tekil)
      dosya.sorunlar.push_back({satir.satirNo, std::string(anahtar), "dosyada iki kez var: " + deger});
  }
}

}  // namespace

bool AktarimDosyasi::Soylendi(int satirNo, std::string_view kolon) const {
  return std::ranges::any_of(sorunlar,
                             [&](const AktarimSorunu& s) { return s.satirNo == satirNo && AdEsit(s.kolon, kolon); });
}

int AktarimDosyasi::KolonSirasi(std::string_view alan) const {
  for (std::size_t i = 0; i < kolonlar.size(); ++i)
    if (kolonlar[i].alan != nullptr && kolonlar[i].alan->ad == alan) return int(i);
  return -1;
}

std::string AktarimDosyasi::Metin(const AktarimSatiri& satir, std::string_view alan) const {
  const int sira = KolonSirasi(alan);
  return sira < 0 ? std::string() : MetinDegeri(satir.degerler[std::size_t(sira)]);
}

Sonuc<AktarimDosyasi> AktarimDosyasiOku(std::string_view csv, const std::vector<const TabloTanimi*>& tablolar,
                                        std::string_view anahtar, AnahtarKurali kural) {
  const auto tablo = CsvOku(csv);
  if (!tablo) return tablo.Kusuru();
  AktarimDosyasi dosya;
  for (const auto& baslik : tablo->basliklar) {
    dosya.kolonlar.push_back(KolonBul(tablolar, baslik));
    const AlanTanimi* alan = dosya.kolonlar.back().alan;
    if (alan == nullptr)
      dosya.sorunlar.push_back({1, baslik, "böyle bir alan yok"});
    else if (alan->nitelik == AlanNiteligi::Otomatik)
      dosya.sorunlar.push_back({1, baslik, "bu numarayı program verir, dosyada olamaz"});
  }
  if (!anahtar.empty() && dosya.KolonSirasi(anahtar) < 0) {
    dosya.sorunlar.push_back({1, std::string(anahtar), "bu sütun dosyada olmalı"});
    return dosya;
  }
  for (const auto& satir : tablo->satirlar) dosya.satirlar.push_back(SatirCevir(*tablo, satir, dosya));
  if (!anahtar.empty()) AnahtarDenetle(dosya, anahtar, kural);
  return dosya;
}

}  // namespace belvani
