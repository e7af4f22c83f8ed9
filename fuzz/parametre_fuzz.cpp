// Each parameter file of the installation and of a company; the first byte chooses which.
#include <cstdlib>

#include "core/dosya.h"
#include "gecici.h"
#include "payroll/parametre/dosyalar.h"

using namespace belvani;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  static const test::GeciciDizin dizin;
  static const char* const adlar[] = {"yasal2.dat", "gvtbl.dat",  "agitbl.dat", "hestur.dat", "kanun.dat",
                                      "kazanc.dat", "yardim.dat", "fmesai.dat", "sablon.dat", "ozgvtbl.dat"};
  if (boy == 0) return 0;
  const std::string dosya = dizin.Yol() + adlar[veri[0] % std::size(adlar)];
  if (!DosyaYaz(dosya, {reinterpret_cast<const char*>(veri) + 1, boy - 1})) std::abort();
  const auto yasal = YasalDosyalariYukle(dizin.Yol(), {}, BozukDosya::Kalir);
  (void)UygulamaBul(yasal.deger.kanunlar, 10, 2008);
  (void)OzelGvYukle(dizin.Yol());
  (void)KazancBayraklariYukle(dizin.Yol());
  (void)FazlaMesaiYukle(dizin.Yol());
  (void)SablonOku(dizin.Yol());
  return 0;
}
