#include "core/session/sirket.h"

#include <algorithm>
#include <filesystem>

#include "core/dosya.h"
#include "core/turkce.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t EnCokHarf = 64;
constexpr std::size_t EnCokBayt = 200;  // a file name holds 255, and files of the company lie beside it while written

bool YasakHarf(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F ||
         std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
}

}  // namespace

Sonuc<std::string> SirketAdi(std::string_view metin) {
  const std::string_view kirpik = Kirp(metin);
  if (kirpik.empty()) return Kusur{"Şirket adı boş olamaz"};
  if (!GecerliUtf8(kirpik) || kirpik.front() == '.' || std::any_of(kirpik.begin(), kirpik.end(), YasakHarf))
    return Kusur{"Şirket adında kullanılamayan bir harf var: nokta ile başlayamaz, / \\ : * ? \" < > | içeremez"};
  std::string ad = BuyukHarf(kirpik);
  if (HarfSayisi(ad) > EnCokHarf || ad.size() > EnCokBayt) return Kusur{"Şirket adı çok uzun (en çok 64 harf)"};
  return ad;
}

Sonuc<std::string> SirketDizini(const std::string& dataPath, std::string_view ad) {
  const auto aranan = SirketAdi(ad);
  if (!aranan) return aranan.Kusuru();
  // The kept form first; a directory made by hand may be written in any case.
  if (DizinVar(dataPath + *aranan)) return DizinSonu(dataPath + *aranan);
  for (const auto& sirket : Sirketler(dataPath))
    if (BuyukHarf(sirket) == *aranan) return DizinSonu(dataPath + sirket);
  return Kusur{"Şirket Bulunamadı: " + *aranan};
}

std::vector<std::string> Sirketler(const std::string& dataPath) {
  std::vector<std::string> adlar;
  std::error_code hata;
  for (fs::directory_iterator i(dataPath, hata), son; !hata && i != son; i.increment(hata)) {
    std::error_code tur;
    const std::string ad = i->path().filename();
    if (i->is_directory(tur) && ad.front() != '.') adlar.push_back(ad);
  }
  std::sort(adlar.begin(), adlar.end(), [](const auto& a, const auto& b) { return TurkceKarsilastir(a, b) < 0; });
  return adlar;
}

}  // namespace belvani
