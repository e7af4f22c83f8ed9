#include "personnel/hucreler.h"

#include <set>

#include "core/tables/hucre.h"
#include "core/turkce.h"

namespace belvani {
namespace {

AktarimKolonu KolonBul(const std::vector<const TabloTanimi*>& tablolar, const std::string& baslik) {
  for (const TabloTanimi* tablo : tablolar)
    if (const AlanTanimi* alan = tablo->AlanBul(baslik)) return {tablo, alan};
  return {};
}

void BaslikKusuru(AktarimDosyasi& dosya, std::string_view baslik, std::string_view neden) {
  dosya.sorunlar.push_back({.metin = std::string(baslik) + ": " + std::string(neden), .satir = 1});
}

template <class... Kayit>
AlanTutamagi Tutamak(std::string_view tablo, std::string_view alan) {
  AlanTutamagi tutamak;
  ((tablo == Kayit::TabloAdi ? void(tutamak = {typeid(Kayit), alan}) : void()), ...);
  return tutamak;
}

AktarimSatiri SatirCevir(const CsvSatiri& satir, OndalikImi ondalik, HucreOkuyan okuyan, AktarimDosyasi& dosya) {
  AktarimSatiri sonuc{satir.satirNo, {}};
  std::vector<std::pair<std::string_view, std::string>> kusurlar;
  for (std::size_t i = 0; i < satir.hucreler.size(); ++i) {
    std::string kusur;
    std::optional<Deger> deger;
    const AlanTanimi* alan = dosya.kolonlar[i].alan;
    if (alan != nullptr && okuyan != nullptr) deger = okuyan(*alan, satir.hucreler[i], kusur);
    if (alan != nullptr && !deger) deger = HucredenDeger(*alan, satir.hucreler[i], ondalik, kusur);
    if (!kusur.empty()) kusurlar.emplace_back(alan->ad, kusur);
    sonuc.degerler.push_back(std::move(deger).value_or(Null{}));
  }
  for (const auto& [alan, neden] : kusurlar) dosya.SorunEkle(sonuc, alan, neden);
  return sonuc;
}

void AnahtarDenetle(AktarimDosyasi& dosya, std::string_view anahtar, AnahtarKurali kural) {
  const auto kucuk = [](const std::string& a, const std::string& b) { return TurkceKarsilastir(a, b) < 0; };
  std::set<std::string, decltype(kucuk)> gorulen(kucuk);
  for (const auto& satir : dosya.satirlar) {
    const std::string deger = dosya.Metin(satir, anahtar);
    if (dosya.Soylendi(satir.satirNo, anahtar)) continue;
    if (deger.empty() || deger == "0")
      dosya.SorunEkle(satir, anahtar, "boş bırakılamaz");
    else if (!gorulen.insert(deger).second && kural == AnahtarKurali::Tekil)
      dosya.SorunEkle(satir, anahtar, "dosyada iki kez var: " + deger);
  }
}

}  // namespace

void AktarimDosyasi::SorunEkle(const AktarimSatiri& satir, std::string_view alan, const std::string& neden) {
  Kusur kusur{.metin = std::string(alan) + ": " + neden, .satir = satir.satirNo};
  const int kisi = KolonSirasi("kod");
  if (kisi >= 0 && kolonlar[std::size_t(kisi)].tablo->ad != Sendika::TabloAdi) kusur.kod = Metin(satir, "kod");
  if (const int sira = KolonSirasi(alan); sira >= 0) {
    const AktarimKolonu& kolon = kolonlar[std::size_t(sira)];
    soylenenler.insert({satir.satirNo, kolon.alan->ad});
    kusur.alan = Tutamak<Sicil, Kimlik, Esco, Firma, Muaf, Indir, Sendika, Kaztan, Brd, Dvr, Cari, Entpar>(
        kolon.tablo->ad, kolon.alan->ad);
  }
  sorunlar.push_back(std::move(kusur));
}

bool AktarimDosyasi::Soylendi(int satirNo, std::string_view kolon) const {
  return soylenenler.contains({satirNo, kolon});
}

void AktarimDosyasi::KolonIste(std::string_view alan) {
  if (KolonSirasi(alan) < 0) BaslikKusuru(*this, alan, "bu sütun dosyada olmalı");
}

void AktarimDosyasi::KolonYasakla(std::string_view alan, std::string_view neden) {
  if (KolonSirasi(alan) >= 0) BaslikKusuru(*this, alan, neden);
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

Sonuc<AktarimDosyasi> AktarimDosyasiOku(const AktarilanCsv& csv, const std::vector<const TabloTanimi*>& tablolar,
                                        std::string_view anahtar, AnahtarKurali kural, HucreOkuyan okuyan) {
  const auto tablo = CsvOku(csv.icerik);
  if (!tablo) return tablo.Kusuru();
  AktarimDosyasi dosya;
  for (const auto& baslik : tablo->basliklar) {
    dosya.kolonlar.push_back(KolonBul(tablolar, baslik));
    const AlanTanimi* alan = dosya.kolonlar.back().alan;
    if (alan == nullptr)
      BaslikKusuru(dosya, baslik, "böyle bir alan yok");
    else if (alan->nitelik == AlanNiteligi::Otomatik)
      BaslikKusuru(dosya, baslik, "bu numarayı program verir, dosyada olamaz");
  }
  if (!anahtar.empty() && dosya.KolonSirasi(anahtar) < 0) {
    dosya.KolonIste(anahtar);
    return dosya;
  }
  for (const auto& satir : tablo->satirlar) dosya.satirlar.push_back(SatirCevir(satir, csv.ondalik, okuyan, dosya));
  if (!anahtar.empty()) AnahtarDenetle(dosya, anahtar, kural);
  return dosya;
}

}  // namespace belvani
