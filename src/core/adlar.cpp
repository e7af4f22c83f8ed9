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
         u_charType(harf) == U_CONTROL_CHAR || (harf != ' ' && u_isUWhiteSpace(harf));
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
  const auto boy = int32_t(metin.size());
  for (int32_t i = 0; i < boy;) {
    UChar32 harf = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"  // inside the library's macro
    U8_NEXT(metin.data(), i, boy, harf);
#pragma GCC diagnostic pop
    if (harf >= 0 && Gorunmez(harf)) return true;
  }
  return false;
}

}  // namespace belvani
