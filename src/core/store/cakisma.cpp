#include "core/store/cakisma.h"

namespace belvani {
namespace {

std::string_view Olan(CakismaTuru tur) {
  switch (tur) {
    case CakismaTuru::Degismis:
      return "değiştirilmiş";
    case CakismaTuru::Silinmis:
      return "silinmiş";
    case CakismaTuru::Eklenmis:
      return "eklenmiş";
  }
  return {};
}

}  // namespace

std::string CakismaMetni(CakismaTuru tur, std::string_view anahtar, const std::vector<std::string>& etiketler) {
  std::string metin = "Kayıt bu arada başka bir kullanıcı tarafından " + std::string(Olan(tur));
  if (!anahtar.empty()) metin += ": " + std::string(anahtar);
  for (std::size_t i = 0; i < etiketler.size(); ++i) metin += (i == 0 ? " (" : ", ") + etiketler[i];
  return etiketler.empty() ? metin : metin + ")";
}

}  // namespace belvani
