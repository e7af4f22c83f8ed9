#include "core/turkce.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <stdexcept>
#include <unicode/ucasemap.h>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <unicode/ucol.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace belvani {
namespace {

// The tables come with the library, so a failure here is a broken installation and nothing can go on without them.
void Sina(UErrorCode kod) {
  if (U_FAILURE(kod)) throw std::runtime_error(std::string("ICU: ") + u_errorName(kod));
}

UCollator* Siralayici() {
  static const std::unique_ptr<UCollator, decltype(&ucol_close)> siralayici(
      [] {
        UErrorCode kod = U_ZERO_ERROR;
        UCollator* c = ucol_open("tr", &kod);
        Sina(kod);
        ucol_setStrength(c, UCOL_SECONDARY);
        return c;
      }(),
      &ucol_close);
  return siralayici.get();
}

UCaseMap* HarfEslemesi() {
  static const std::unique_ptr<UCaseMap, decltype(&ucasemap_close)> esleme(
      [] {
        UErrorCode kod = U_ZERO_ERROR;
        UCaseMap* e = ucasemap_open("tr", 0, &kod);
        Sina(kod);
        return e;
      }(),
      &ucasemap_close);
  return esleme.get();
}

using HarfIslevi = int32_t (*)(const UCaseMap*, char*, int32_t, const char*, int32_t, UErrorCode*);

std::string HarfCevir(std::string_view metin, HarfIslevi islev) {
  std::string sonuc(metin.size() * 2 + 8, '\0');
  UErrorCode kod = U_ZERO_ERROR;
  int32_t n = islev(HarfEslemesi(), sonuc.data(), int32_t(sonuc.size()), metin.data(), int32_t(metin.size()), &kod);
  if (kod == U_BUFFER_OVERFLOW_ERROR) {
    sonuc.resize(std::size_t(n) + 1);
    kod = U_ZERO_ERROR;
    n = islev(HarfEslemesi(), sonuc.data(), int32_t(sonuc.size()), metin.data(), int32_t(metin.size()), &kod);
  }
  Sina(kod);
  sonuc.resize(std::size_t(n));
  return sonuc;
}

UConverter* Cevirici(KodSayfasi sayfa) {
  struct Kapat {
    void operator()(UConverter* c) const { ucnv_close(c); }
  };
  static std::unique_ptr<UConverter, Kapat> ceviriciler[3];
  static constexpr const char* adlar[] = {"windows-1254", "ibm-857", "iso-8859-9"};
  auto& cevirici = ceviriciler[std::size_t(sayfa)];
  if (!cevirici) {
    UErrorCode kod = U_ZERO_ERROR;
    cevirici.reset(ucnv_open(adlar[std::size_t(sayfa)], &kod));
    Sina(kod);
    ucnv_setSubstChars(cevirici.get(), "?", 1, &kod);
    Sina(kod);
  }
  ucnv_reset(cevirici.get());
  return cevirici.get();
}

icu::UnicodeString Utf16(std::string_view utf8) {
  return icu::UnicodeString::fromUTF8(icu::StringPiece(utf8.data(), int32_t(utf8.size())));
}

// Codes are mostly digits and plain letters, and the store compares them all day: their order without the library.
// Place in the alphabet of the letters that need nothing more: 0-9, then A-Z in either case. I is the capital of ı and
// comes before i. 0: not one of them.
constexpr std::array<std::uint8_t, 256> YalinSiralar = [] {
  std::array<std::uint8_t, 256> siralar{};
  std::uint8_t sira = 0;
  for (std::size_t c = '0'; c <= '9'; ++c) siralar[c] = ++sira;
  constexpr std::size_t KucukFarki = 'a' - 'A';
  for (std::size_t c = 'A'; c <= 'Z'; ++c) {
    siralar[c] = ++sira;
    siralar[c + KucukFarki] = c == 'I' ? ++sira : sira;
  }
  return siralar;
}();

std::optional<int> YalinKarsilastir(std::string_view a, std::string_view b) {
  const auto sira = [](char c) { return YalinSiralar[static_cast<unsigned char>(c)]; };
  const std::size_t ortak = std::min(a.size(), b.size());
  int fark = 0;
  for (std::size_t i = 0; i < ortak; ++i) {
    if (sira(a[i]) == 0 || sira(b[i]) == 0) return std::nullopt;
    if (fark == 0) fark = int(sira(a[i])) - int(sira(b[i]));
  }
  const std::string_view kalan = (a.size() > b.size() ? a : b).substr(ortak);
  if (std::any_of(kalan.begin(), kalan.end(), [&](char c) { return sira(c) == 0; })) return std::nullopt;
  if (fark != 0) return fark;
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

// The next letter from `i`, which moves past it; negative for a broken byte.
UChar32 SonrakiHarf(std::string_view metin, int32_t& i) {
  UChar32 harf = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"  // inside the library's macro
  U8_NEXT(metin.data(), i, int32_t(metin.size()), harf);
#pragma GCC diagnostic pop
  return harf;
}

bool Denetim(unsigned char c) {
  return c < 0x20 || c == 0x7F;
}

}  // namespace

std::string BuyukHarf(std::string_view metin) {
  return HarfCevir(metin, &ucasemap_utf8ToUpper);
}
std::string KucukHarf(std::string_view metin) {
  return HarfCevir(metin, &ucasemap_utf8ToLower);
}

int TurkceKarsilastir(std::string_view a, std::string_view b) {
  if (a == b) return 0;
  if (const auto sira = YalinKarsilastir(a, b)) return *sira;
  UErrorCode kod = U_ZERO_ERROR;
  const int sira = ucol_strcollUTF8(Siralayici(), a.data(), int32_t(a.size()), b.data(), int32_t(b.size()), &kod);
  if (sira != 0) return sira;
  // To the library all broken bytes are one letter; here two different broken texts are never equal.
  const bool aBozuk = !GecerliUtf8(a);
  const bool bBozuk = !GecerliUtf8(b);
  if (aBozuk && bBozuk) return a.compare(b);
  return int(aBozuk) - int(bBozuk);
}

bool TurkceEsit(std::string_view a, std::string_view b) {
  return TurkceKarsilastir(a, b) == 0;
}

bool AdEsit(std::string_view a, std::string_view b) {
  const auto kucuk = [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 'a' - 'A') : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return kucuk(x) == kucuk(y); });
}

std::uint32_t TurkceSiraSurumu() {
  UVersionInfo surum;
  ucol_getVersion(Siralayici(), surum);
  return std::uint32_t(surum[0]) << 24 | std::uint32_t(surum[1]) << 16 | std::uint32_t(surum[2]) << 8 | surum[3];
}

std::string_view Kirp(std::string_view metin) {
  const auto bas = metin.find_first_not_of(' ');
  if (bas == std::string_view::npos) return {};
  return metin.substr(bas, metin.find_last_not_of(' ') - bas + 1);
}

bool GecerliUtf8(std::string_view metin) {
  for (int32_t i = 0; i < int32_t(metin.size());)
    if (SonrakiHarf(metin, i) < 0) return false;
  return true;
}

std::size_t HarfSayisi(std::string_view metin) {
  std::size_t sayi = 0;
  for (int32_t i = 0; i < int32_t(metin.size()); ++sayi) SonrakiHarf(metin, i);
  return sayi;
}

std::string_view IlkHarfler(std::string_view metin, std::size_t harf) {
  int32_t i = 0;
  for (; harf > 0 && i < int32_t(metin.size()); --harf) U8_FWD_1(metin.data(), i, int32_t(metin.size()));
  return metin.substr(0, std::size_t(i));
}

std::string DenetimsizMetin(std::string_view metin) {
  std::string sonuc;
  sonuc.reserve(metin.size());
  for (const char c : metin)
    if (!Denetim(static_cast<unsigned char>(c))) sonuc += c;
  return sonuc;
}

std::string KodSayfasina(std::string_view utf8, KodSayfasi sayfa) {
  const icu::UnicodeString metin = Utf16(utf8);
  std::string sonuc(std::size_t(metin.length()) + 1, '\0');
  UErrorCode kod = U_ZERO_ERROR;
  const int32_t n =
      ucnv_fromUChars(Cevirici(sayfa), sonuc.data(), int32_t(sonuc.size()), metin.getBuffer(), metin.length(), &kod);
  Sina(kod);
  sonuc.resize(std::size_t(n));
  return sonuc;
}

bool KodSayfasinaSigar(std::string_view utf8, KodSayfasi sayfa) {
  return KodSayfasindan(KodSayfasina(utf8, sayfa), sayfa) == utf8;
}

std::string KodSayfasindan(std::string_view baytlar, KodSayfasi sayfa) {
  icu::UnicodeString metin;
  UErrorCode kod = U_ZERO_ERROR;
  const int32_t yer = int32_t(baytlar.size()) * 2 + 1;
  const int32_t n =
      ucnv_toUChars(Cevirici(sayfa), metin.getBuffer(yer), yer, baytlar.data(), int32_t(baytlar.size()), &kod);
  metin.releaseBuffer(n);
  Sina(kod);
  std::string sonuc;
  metin.toUTF8String(sonuc);
  return sonuc;
}

}  // namespace belvani
