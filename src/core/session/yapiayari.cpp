#include "core/session/yapiayari.h"

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "core/turkce.h"

namespace belvani {

Durum YapiAyariKaydet(const YapiAyari& ayar) {
  const std::string prg(Kirp(ayar.prg)), data(Kirp(ayar.data));
  if (prg.empty()) return Kusur{"Bir Çalışma Dizini Verilmelidir.", yapiayari::prg};
  if (data.empty()) return Kusur{"Bir Data Dizini Verilmelidir.", yapiayari::data};
  for (const auto& [anahtar, yol] : {std::pair(yapiayari::prg.ad, prg), std::pair(yapiayari::data.ad, data)})
    if (Durum d = MakineAyariYaz(anahtar, DizinSonu(yol)); !d) return d;
  return Tamam();
}

}  // namespace belvani
