// The paths of the installation: where the program's files lie, and where the companies are, which may be the address
// of a server. They are settings of the machine; a running session keeps its old ones.
#pragma once

#include <string>

#include "core/sonuc.h"
#include "core/tables/alan.h"

namespace belvani {

struct YapiAyari {
  static constexpr int EnCokHarf = 1024;

  std::string prg, data;
};

namespace yapiayari {
// clang-format off
inline constexpr Kolon<YapiAyari, std::string> prg{{"PrgPath", AlanTipi::Metin, YapiAyari::EnCokHarf, AlanNiteligi::Serbest}, &YapiAyari::prg};
inline constexpr Kolon<YapiAyari, std::string> data{{"DataPath", AlanTipi::Metin, YapiAyari::EnCokHarf, AlanNiteligi::Serbest}, &YapiAyari::data};
// clang-format on
}  // namespace yapiayari

// Records both paths, each with a separator at its end, for the program's next start. An empty one is a fault; so is an
// address that is broken or has a password in it.
Durum YapiAyariKaydet(const YapiAyari& ayar);

}  // namespace belvani
