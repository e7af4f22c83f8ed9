#include "core/session/sinifbakimi.h"

#include "core/ini.h"

namespace belvani {
namespace {

constexpr const char* Bolum = "Kontrol";
constexpr const char* Anahtar = "tehlikesinifi";

}  // namespace

SinifBakimi SinifBakimiOku(const VeriYolu& sirket) {
  const std::string isaret = IniOku(Bolum, Anahtar, "0", {sirket, SirketAyarDosyasi});
  if (isaret == "1") return SinifBakimi::Soruldu;
  return isaret == "2" ? SinifBakimi::Bakildi : SinifBakimi::Sorulmadi;
}

Durum SinifBakimiYaz(const VeriYolu& sirket, SinifBakimi bakim) {
  if (SinifBakimiOku(sirket) == bakim) return Tamam();
  return IniYaz(Bolum, Anahtar, std::to_string(int(bakim)), {sirket, SirketAyarDosyasi});
}

}  // namespace belvani
