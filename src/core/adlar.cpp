#include "core/adlar.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include "core/turkce.h"

namespace belvani {
namespace {

bool Gorunmez(UChar32 harf) {
  return u_hasBinaryProperty(harf, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) || u_charType(harf) == U_FORMAT_CHAR ||
         u_charType(harf) == U_CONTROL_CHAR;
}

// Of a broken byte a negative one.
UChar32 SonrakiHarf(std::string_view metin, std::size_t& yer) {
  UChar32 harf = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"  // inside the library's macro
  U8_NEXT(metin.data(), yer, metin.size(), harf);
#pragma GCC diagnostic pop
  return harf;
}

}  // namespace

std::string BirlesikHarfli(std::string_view metin) {
  UErrorCode hata = U_ZERO_ERROR;
  const icu::Normalizer2* bicim = icu::Normalizer2::getNFCInstance(hata);
  std::string birlesik(metin);
  if (U_FAILURE(hata) || !GecerliUtf8(metin)) return birlesik;
  const auto utf16 = icu::UnicodeString::fromUTF8(icu::StringPiece(metin.data(), int32_t(metin.size())));
  const icu::UnicodeString sonuc = bicim->normalize(utf16, hata);
  if (U_FAILURE(hata)) return birlesik;
  birlesik.clear();
  return sonuc.toUTF8String(birlesik);
}

bool GorunmezHarfVar(std::string_view metin) {
  for (std::size_t i = 0; i < metin.size();) {
    const UChar32 harf = SonrakiHarf(metin, i);
    if (harf >= 0 && (Gorunmez(harf) || (harf != ' ' && u_isUWhiteSpace(harf)))) return true;
  }
  return false;
}

std::string TerminalMetni(std::string_view metin) {
  constexpr std::string_view bilinmeyen = "\xEF\xBF\xBD";
  std::string sonuc;
  sonuc.reserve(metin.size());
  for (std::size_t i = 0; i < metin.size();) {
    const std::size_t bas = i;
    const char c = metin[i];
    if ((c >= ' ' && c < 0x7f) || c == '\n' || c == '\t' || c == '\f' || metin.substr(i, 2) == "\r\n") {
      sonuc += c;
      ++i;
    } else {
      const UChar32 harf = SonrakiHarf(metin, i);
      sonuc += harf < 0 || Gorunmez(harf) ? bilinmeyen : metin.substr(bas, i - bas);
    }
  }
  return sonuc;
}

}  // namespace belvani
