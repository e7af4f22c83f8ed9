// A workbook of the user's as a form that is filled.
#include "printing/xlsxsablon.h"

using namespace belvani;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* veri, std::size_t boy) {
  auto sablon = XlsxSablon::Ac(std::string(reinterpret_cast<const char*>(veri), boy));
  if (!sablon) return 0;
  (void)sablon->Yaz("", "B2", std::string("Işıl"));
  (void)sablon->SayfaKopyala("", "kopya");
  (void)sablon->Bitir();
  return 0;
}
