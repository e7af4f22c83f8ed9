// JSON for one calculation, and the calculation on whatever passes the checks.
#include "cli/hesapgirdisi.h"
#include "cli/ortak.h"

using namespace belvani;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  try {
    const cli::HesapGirdisi h = cli::HesapGirdisiOku(cli::JsonOku({reinterpret_cast<const char*>(veri), boy}));
    if (!h.kusurlar.empty()) return 0;
    const BordroGirdi g = h.Girdi();
    Iz iz;
    if (!GirdiKusuru(g)) (void)BordroHesapla(g, nullptr, &iz);
  } catch (const cli::KomutHatasi&) {
  } catch (const TutarTasmasi&) {
  }
  return 0;
}
