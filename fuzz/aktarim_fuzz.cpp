// CSV files of people, families, definitions and of a month's entries.
#include "cli/giris.h"
#include "cli/ortak.h"
#include "personnel/hucreler.h"

using namespace belvani;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  const std::string csv(reinterpret_cast<const char*>(veri), boy);
  (void)AktarimDosyasiOku(csv, {TabloBul("sicil"), TabloBul("kimlik")}, "kod", AnahtarKurali::Tekil);
  (void)AktarimDosyasiOku(csv, {TabloBul("esco")}, "kod", AnahtarKurali::TekrarEder);
  (void)AktarimDosyasiOku(csv, {TabloBul("firma")}, "", AnahtarKurali::Tekil);
  try {
    (void)cli::GirisListesiOku(csv, {.ad = "giris.csv"}, {});
  } catch (const cli::KomutHatasi&) {
  }
  return 0;
}
