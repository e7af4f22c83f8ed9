#include "core/session/sirket.h"

#include <algorithm>

#include "core/turkce.h"

namespace belvani {
namespace {

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

Sonuc<std::string> SirketDizini(const VeriYolu& veri, std::string_view ad) {
  const auto aranan = SirketAdi(ad);
  if (!aranan) return aranan.Kusuru();
  // The kept form first; a directory made by hand may be written in any case.
  if (veri.AltVar(*aranan)) return veri.Alt(*aranan).Adres();
  for (const auto& sirket : Sirketler(veri))
    if (BuyukHarf(sirket) == *aranan) return veri.Alt(sirket).Adres();
  return Kusur{"Şirket Bulunamadı: " + *aranan};
}

std::vector<std::string> Sirketler(const VeriYolu& veri) {
  std::vector<std::string> adlar = veri.Altlar();
  std::sort(adlar.begin(), adlar.end(), [](const auto& a, const auto& b) { return TurkceKarsilastir(a, b) < 0; });
  return adlar;
}

std::string DepoAdresi(const VeriYolu& sirket) {
  return sirket.Adres(DepoDosyasi);
}

}  // namespace belvani
