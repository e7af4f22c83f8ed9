#include "core/yedek/kunye.h"

#include <algorithm>
#include <charconv>
#include <set>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::string_view Imza = "belvani-yedek: ";
constexpr std::string_view BuBicim = "1";
constexpr std::string_view DosyaAnahtari = "dosya";
constexpr std::size_t OzetBoyu = 32;

struct KunyeSatiri {
  std::string_view anahtar;
  std::string YedekKunyesi::*uye;
};
constexpr KunyeSatiri Satirlar[] = {
    {"sirket", &YedekKunyesi::sirket}, {"unvan", &YedekKunyesi::unvan},       {"zaman", &YedekKunyesi::zaman},
    {"tur", &YedekKunyesi::tur},       {"versiyon", &YedekKunyesi::versiyon}, {"iz", &YedekKunyesi::iz},
};

struct TurAdi {
  YedekTuru tur;
  std::string_view soz, metin;
};
constexpr TurAdi TurAdlari[] = {
    {YedekTuru::Elle, "elle", "elle"},
    {YedekTuru::Gunluk, "gunluk", "günlük"},
    {YedekTuru::Yukseltme, "yukseltme", "yükseltmeden önce"},
    {YedekTuru::Silme, "silme", "silmeden önce"},
    {YedekTuru::Donus, "donus", "geri yüklemeden önce"},
};

const TurAdi& Adi(YedekTuru tur) {
  return *std::ranges::find(TurAdlari, tur, &TurAdi::tur);
}

Kusur KunyeBozuk() {
  return Kusur{"Yedeğin künyesi bozuk"};
}

// "32 hexadecimal letters, size, name": the name goes to the end of the line.
bool DosyaOku(std::string_view deger, YedekDosyasi& dosya) {
  const std::size_t bir = deger.find(' '), iki = deger.find(' ', bir + 1);
  if (bir != OzetBoyu || iki == std::string_view::npos) return false;
  dosya.ozet = deger.substr(0, bir);
  const char* son = deger.data() + iki;
  const auto [ilerisi, hata] = std::from_chars(deger.data() + bir + 1, son, dosya.boy);
  if (hata != std::errc() || ilerisi != son) return false;
  dosya.ad = deger.substr(iki + 1);
  return YedeklenirAd(dosya.ad);
}

}  // namespace

std::string_view TurSozu(YedekTuru tur) {
  return Adi(tur).soz;
}
std::string_view TurMetni(YedekTuru tur) {
  return Adi(tur).metin;
}

bool YedeklenirAd(std::string_view ad) {
  constexpr std::size_t EnCokBayt = 255;
  return !ad.empty() && ad.size() <= EnCokBayt && ad.front() != '.' && ad.find_first_of("/\\") == ad.npos &&
         GecerliUtf8(ad) && DenetimsizMetin(ad) == ad;
}

std::string KunyeMetni(const YedekKunyesi& kunye) {
  std::string metin = std::string(Imza) + std::string(BuBicim) + "\n";
  for (const KunyeSatiri& s : Satirlar) metin += std::string(s.anahtar) + ": " + DenetimsizMetin(kunye.*s.uye) + "\n";
  for (const YedekDosyasi& d : kunye.dosyalar)
    metin += std::string(DosyaAnahtari) + ": " + d.ozet + " " + std::to_string(d.boy) + " " + d.ad + "\n";
  return metin;
}

Sonuc<YedekKunyesi> KunyeOku(std::string_view metin) {
  YedekKunyesi kunye;
  std::set<std::string, std::less<>> adlar;
  bool imzali = false;
  while (!metin.empty()) {
    const std::string_view satir = metin.substr(0, metin.find('\n'));
    metin.remove_prefix(std::min(metin.size(), satir.size() + 1));
    if (!imzali) {
      if (!satir.starts_with(Imza)) return KunyeBozuk();
      if (satir.substr(Imza.size()) != BuBicim) return Kusur{"Yedek programın başka bir sürümünün biçiminde"};
      imzali = true;
      continue;
    }
    const std::size_t ayrac = satir.find(": ");
    if (ayrac == std::string_view::npos || !GecerliUtf8(satir)) return KunyeBozuk();
    const std::string_view anahtar = satir.substr(0, ayrac), deger = satir.substr(ayrac + 2);
    if (anahtar == DosyaAnahtari) {
      YedekDosyasi dosya;
      if (!DosyaOku(deger, dosya) || !adlar.insert(dosya.ad).second) return KunyeBozuk();
      kunye.dosyalar.push_back(std::move(dosya));
    } else if (const auto s = std::ranges::find(Satirlar, anahtar, &KunyeSatiri::anahtar); s != std::end(Satirlar)) {
      kunye.*(s->uye) = DenetimsizMetin(deger);
    }
  }
  if (!imzali || kunye.sirket.empty()) return KunyeBozuk();
  return kunye;
}

}  // namespace belvani
