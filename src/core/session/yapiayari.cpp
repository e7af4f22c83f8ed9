#include "core/session/yapiayari.h"

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "core/turkce.h"

namespace belvani {

bool YapiAyariKaydet(std::string_view prgPath, std::string_view dataPath, Bildirim& bildirim) {
  const std::string prg(Kirp(prgPath)), data(Kirp(dataPath));
  if (prg.empty() || data.empty()) {
    bildirim.Uyari(prg.empty() ? "Bir Çalışma Dizini Verilmelidir." : "Bir Data Dizini Verilmelidir.");
    return false;
  }
  for (const auto& [anahtar, yol] : {std::pair("PrgPath", prg), std::pair("DataPath", data)})
    if (const auto d = MakineAyariYaz(anahtar, DizinSonu(yol)); !d) {
      bildirim.Uyari(d.KusurMetni());
      return false;
    }
  bildirim.Bilgi("Yeni Ayarlar Kaydedildi\nGeçerli Olabilmesi İçin Programdan Çıkıp Girmelisiniz..");
  return true;
}

}  // namespace belvani
