#include "core/session/sirket.h"

#include <algorithm>
#include <array>

#include "core/adlar.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::size_t EnCokHarf = 64;
constexpr std::size_t EnCokBayt = 200;  // a file name holds 255, and files of the company lie beside it while written

// Devices of other systems, whatever follows them after a point: a share of theirs cannot hold such a directory.
constexpr std::array<std::string_view, 22> AygitAdlari{"CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4",
                                                       "COM5", "COM6", "COM7", "COM8", "COM9", "LPT1", "LPT2", "LPT3",
                                                       "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9"};

bool YasakHarf(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F ||
         std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
}

bool AygitAdi(std::string_view ad) {
  const std::string_view govde = Kirp(ad.substr(0, ad.find('.')));
  return std::find(AygitAdlari.begin(), AygitAdlari.end(), govde) != AygitAdlari.end();
}

// What two spellings of one name have in common.
std::string Anahtar(std::string_view ad) {
  return BuyukHarf(BirlesikHarfli(Kirp(ad)));
}

}  // namespace

Sonuc<std::string> SirketAdi(std::string_view metin) {
  const std::string_view kirpik = Kirp(metin);
  if (kirpik.empty()) return KuralKusuru("Şirket adı boş olamaz");
  if (!GecerliUtf8(kirpik) || kirpik.front() == '.' || std::any_of(kirpik.begin(), kirpik.end(), YasakHarf))
    return KuralKusuru("Şirket adında kullanılamayan bir harf var: nokta ile başlayamaz, / \\ : * ? \" < > | içeremez");
  if (GorunmezHarfVar(kirpik)) return KuralKusuru("Şirket adında görünmeyen bir harf var, adı klavyeden yazınız");
  if (kirpik.back() == '.') return KuralKusuru("Şirket adı nokta ile bitemez");
  std::string ad = Anahtar(kirpik);
  if (HarfSayisi(ad) > EnCokHarf || ad.size() > EnCokBayt) return KuralKusuru("Şirket adı çok uzun (en çok 64 harf)");
  if (AygitAdi(ad)) return KuralKusuru("Bu ad bazı bilgisayarlarda bir aygıtındır, şirket adı olamaz: " + ad);
  return ad;
}

std::vector<std::string> UyanSirketler(const VeriYolu& veri, std::string_view metin) {
  std::vector<std::string> adlar = Sirketler(veri);
  for (const std::string_view tam : {metin, Kirp(metin)})
    if (std::find(adlar.begin(), adlar.end(), tam) != adlar.end()) return {std::string(tam)};
  const std::string aranan = Anahtar(metin);
  std::erase_if(adlar, [&](const std::string& ad) { return Anahtar(ad) != aranan; });
  return adlar;
}

Sonuc<std::string> SirketBul(const VeriYolu& veri, std::string_view metin) {
  auto uyanlar = UyanSirketler(veri, metin);
  if (uyanlar.size() == 1) return std::move(uyanlar.front());
  if (uyanlar.empty()) {
    if (Durum erisim = veri.Erisim(); !erisim) return erisim.Kusuru();  // nobody can tell what is there
    const auto aranan = SirketAdi(metin);
    return aranan ? Kusur{"Şirket Bulunamadı: " + *aranan} : aranan.Kusuru();
  }
  std::string kusur = "Bu ada uyan birden çok şirket var, adı dizininki gibi yazınız:";
  for (const std::string& ad : uyanlar) kusur += "\n" + ad;
  return KuralKusuru(std::move(kusur));
}

std::vector<std::string> Sirketler(const VeriYolu& veri) {
  std::vector<std::string> adlar = veri.Altlar();
  std::sort(adlar.begin(), adlar.end(), [](const auto& a, const auto& b) {
    const int sira = TurkceKarsilastir(a, b);
    return sira != 0 ? sira < 0 : a < b;
  });
  return adlar;
}

std::string DepoAdresi(const VeriYolu& sirket) {
  return sirket.Adres(DepoDosyasi);
}

bool DepoVar(const VeriYolu& sirket) {
  return sirket.Iz(DepoDosyasi).has_value();
}

}  // namespace belvani
