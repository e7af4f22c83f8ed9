// A file of law figures as an office might have edited it.
#include <cstdlib>

#include "core/dosya.h"
#include "gecici.h"
#include "payroll/parametre/mevzuat.h"

using namespace belvani;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  static const test::GeciciDizin dizin;
  if (!DosyaYaz(dizin.Yol() + "2008-2.json", {reinterpret_cast<const char*>(veri), boy})) std::abort();
  (void)MevzuatYukle(dizin.Yol(), 2008, 9);
  (void)MevzuatYukle(dizin.Yol(), 2008, 10, Lira::Eski);
  return 0;
}
