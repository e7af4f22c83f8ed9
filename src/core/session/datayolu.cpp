#include "core/session/datayolu.h"

#include "core/dosya.h"
#include "core/sunucuadresi.h"

namespace belvani {

Sonuc<std::string> DataYolu(const std::string& metin) {
  if (!SunucuAdresiMi(metin)) return DizinSonu(metin);
  const auto adres = SunucuAdresiCoz(metin);
  if (!adres) return adres.Kusuru();
  if (!adres->yol.empty())
    return Kusur{"Data yolu bir şirketin adresi olamaz, # işaretinden öncesini veriniz: " + metin};
  return adres->Yer();
}

std::string DataYoluMetni(const std::string& dataPath) {
  const auto adres = SunucuAdresiCoz(dataPath);
  return adres ? adres->baglanti : dataPath;
}

}  // namespace belvani
