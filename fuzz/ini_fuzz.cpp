// A settings file written by somebody else.
#include <cstdlib>

#include "core/dosya.h"
#include "core/ini.h"
#include "gecici.h"

using namespace belvani;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  static const test::GeciciDizin dizin;
  const std::string dosya = dizin.Yol() + "a.ini";
  if (!DosyaYaz(dosya, {reinterpret_cast<const char*>(veri), boy})) std::abort();
  (void)IniOku("Bordro", "Brdizin", "", dosya);
  if (IniYaz("Bordro", "Brdizin", "ığüşöç 1", dosya) && IniOku("Bordro", "Brdizin", "", dosya) != "ığüşöç 1")
    std::abort();
  return 0;
}
