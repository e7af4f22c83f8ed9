#include "core/session/yapiayari.h"

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "core/session/datayolu.h"
#include "core/turkce.h"

namespace belvani {

Durum YapiAyariKaydet(const YapiAyari& ayar) {
  const std::string prg(Kirp(ayar.prg)), data(Kirp(ayar.data));
  if (prg.empty()) return Kusur{"Bir Çalışma Dizini Verilmelidir.", yapiayari::prg};
  if (data.empty()) return Kusur{"Bir Data Dizini Verilmelidir.", yapiayari::data};
  const auto dataYolu = DataYolu(data);
  if (!dataYolu) return Kusur{dataYolu.KusurMetni(), yapiayari::data};
  for (const auto& [anahtar, yol] :
       {std::pair(yapiayari::prg.ad, DizinSonu(prg)), std::pair(yapiayari::data.ad, DataYoluMetni(*dataYolu))})
    if (Durum d = MakineAyariYaz(anahtar, yol); !d) return d;
  return Tamam();
}

}  // namespace belvani
