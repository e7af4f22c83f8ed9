#include "printing/doskod.h"

#include <algorithm>

#include "core/turkce.h"

namespace belvani {
namespace {

bool Ascii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

// Stretches of ASCII go over as they are: a converter would swap some control codes of this page.
template <class Cevir>
std::string AsciiDisini(std::string_view metin, Cevir cevir) {
  std::string baytlar;
  baytlar.reserve(metin.size());
  while (!metin.empty()) {
    const bool ascii = Ascii(metin[0]);
    const auto son = std::find_if(metin.begin(), metin.end(), [&](char c) { return Ascii(c) != ascii; });
    const auto parca = metin.substr(0, std::size_t(son - metin.begin()));
    ascii ? baytlar.append(parca) : baytlar.append(cevir(parca));
    metin.remove_prefix(parca.size());
  }
  return baytlar;
}

}  // namespace

std::string DosSar(std::string_view baytlar, const DosKodu& kod) {
  std::string sonuc(kod.ac);
  sonuc += baytlar;
  return sonuc += kod.kapat;
}

std::string DosBaytlari(std::string_view utf8) {
  return AsciiDisini(utf8, [](std::string_view parca) { return KodSayfasina(parca, KodSayfasi::Dos857); });
}

std::string CevrilmemisBaytlar(std::string_view utf8) {
  static constexpr std::string_view turkce = "ÇçĞğÖöÜüİıŞş";
  return AsciiDisini(utf8, [](std::string_view parca) {
    std::string baytlar;
    while (!parca.empty()) {
      const std::string_view harf = IlkHarfler(parca, 1);
      const bool cevrilen = turkce.find(harf) != std::string_view::npos;
      baytlar += KodSayfasina(harf, cevrilen ? KodSayfasi::Windows1254 : KodSayfasi::Dos857);
      parca.remove_prefix(harf.size());
    }
    return baytlar;
  });
}

}  // namespace belvani
