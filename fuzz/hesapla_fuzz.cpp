// JSON for one calculation, and the calculation on whatever passes the checks.
#include "cli/hesapgirdisi.h"
#include "cli/jsonakisi.h"
#include "cli/ortak.h"

using namespace belvani;

namespace {

void Hesapla(const cli::Json& json) {
  const cli::HesapGirdisi h = cli::HesapGirdisiOku(json);
  if (!h.kusurlar.empty()) return;
  const BordroGirdi g = h.Girdi();
  Iz iz;
  if (!GirdiKusuru(g)) (void)BordroHesapla(g, nullptr, &iz);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  try {
    cli::JsonGirdisi girdi({reinterpret_cast<const char*>(veri), boy});
    while (const auto biri = girdi.Sonraki()) Hesapla(*biri);
  } catch (const cli::KomutHatasi&) {
  } catch (const TutarTasmasi&) {
  }
  return 0;
}
