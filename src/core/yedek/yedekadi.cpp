#include "core/yedek/yedekadi.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "core/saat.h"
#include "core/sayi.h"

namespace belvani {
namespace {

constexpr std::string_view Uzanti = ".zip";
constexpr std::size_t GunBoyu = 10, SaatBoyu = 6;
constexpr std::size_t KalanGun = 10, KalanAy = 12;

int AySirasi(Tarih gun) {
  return gun.Yil() * 12 + gun.Ay();
}

auto Sira(const YedekAdi& ad) {
  return std::tie(ad.gun, ad.saat, ad.sira);
}

// The part before the next "-", which it takes off.
std::string_view ParcaAl(std::string_view& kalan) {
  const std::string_view parca = kalan.substr(0, kalan.find('-'));
  kalan.remove_prefix(std::min(kalan.size(), parca.size() + 1));
  return parca;
}

// Those that stay of the daily ones, from the newest to the oldest.
class GunlukSecimi {
 public:
  bool Kalir(const YedekAdi& ad) {
    if (gunler_.contains(ad.gun)) return false;
    if (gunler_.size() < KalanGun) return gunler_.insert(ad.gun).second;
    return aylar_.size() < KalanAy && aylar_.insert(AySirasi(ad.gun)).second;
  }

 private:
  std::set<Tarih> gunler_;
  std::set<int> aylar_;
};

}  // namespace

std::string YedekAdi::Metin() const {
  return gun.Iso() + "-" + saat + "-" + (sira == 1 ? "" : std::to_string(sira) + "-") + std::string(TurSozu(tur)) +
         std::string(Uzanti);
}

std::string YedekAdi::Zaman() const {
  return gun.Metin() + " " + saat.substr(0, 2) + ":" + saat.substr(2, 2);
}

std::optional<YedekAdi> YedekAdi::Oku(std::string_view ad) {
  if (!ad.ends_with(Uzanti) || ad.size() < GunBoyu + 1 + Uzanti.size()) return std::nullopt;
  YedekAdi okunan;
  std::string_view kalan = ad.substr(0, ad.size() - Uzanti.size());
  okunan.gun = Tarih::IsoOku(kalan.substr(0, GunBoyu));
  if (okunan.gun.Bos() || kalan[GunBoyu] != '-') return std::nullopt;
  kalan.remove_prefix(GunBoyu + 1);
  okunan.saat = ParcaAl(kalan);
  const bool rakam = std::ranges::all_of(okunan.saat, [](char c) { return c >= '0' && c <= '9'; });
  if (okunan.saat.size() != SaatBoyu || !rakam) return std::nullopt;
  std::string_view soz = ParcaAl(kalan);
  if (const auto sira = TamSayiOku(soz); sira && *sira > 1 && *sira < 1000) {
    okunan.sira = int(*sira);
    soz = ParcaAl(kalan);
  }
  const auto tur = std::ranges::find(YedekTurleri, soz, &TurSozu);
  if (tur == YedekTurleri.end() || !kalan.empty()) return std::nullopt;
  okunan.tur = *tur;
  return okunan;
}

bool DahaEski(const YedekAdi& a, const YedekAdi& b) {
  return Sira(a) < Sira(b);
}

YedekAdi SimdikiYedekAdi(YedekTuru tur) {
  const std::tm saat = YerelZaman(SimdikiAn());
  char metin[SaatBoyu + 1];
  std::strftime(metin, sizeof metin, "%H%M%S", &saat);
  return {.gun = Tarih::Bugun(), .saat = metin, .tur = tur};
}

std::string KunyeZamani(const YedekAdi& ad) {
  return ad.gun.Iso() + " " + ad.saat.substr(0, 2) + ":" + ad.saat.substr(2, 2) + ":" + ad.saat.substr(4);
}

std::vector<YedekAdi> SuresiDolanlar(std::vector<YedekAdi> adlar, Tarih bugun) {
  std::ranges::sort(adlar, [](const YedekAdi& a, const YedekAdi& b) { return DahaEski(b, a); });
  GunlukSecimi gunlukler;
  const auto kalir = [&](const YedekAdi& ad) {
    switch (ad.tur) {
      case YedekTuru::Elle:
        return true;
      case YedekTuru::Gunluk:
        return gunlukler.Kalir(ad);
      case YedekTuru::Yukseltme:
      case YedekTuru::Silme:
      case YedekTuru::Donus:
        return AySirasi(bugun) - AySirasi(ad.gun) <= int(KalanAy);
    }
    return true;
  };
  std::erase_if(adlar, kalir);
  return adlar;
}

}  // namespace belvani
