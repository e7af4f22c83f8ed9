#include "core/veridizini.h"

#include <cstdlib>

#include "core/dosya.h"

namespace belvani {

std::string VeriDizini(std::string_view klasor) {
  const std::string alt = "/" + std::string(klasor) + "/";
  const char* ortam = std::getenv("BELVANI_VERI_DIZIN");
  if (ortam != nullptr && *ortam != '\0') return DizinSonu(ortam) + alt.substr(1);
  const std::string kurulu = BELVANI_KURULU_VERI + alt;
#ifdef BELVANI_KAYNAK_VERI
  if (!DizinVar(kurulu)) return BELVANI_KAYNAK_VERI + alt;
#endif
  return kurulu;
}

}  // namespace belvani
