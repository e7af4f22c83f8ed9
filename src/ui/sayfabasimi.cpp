#include "ui/sayfabasimi.h"

#include "printing/form/formbelgesi.h"
#include "printing/metincizimi.h"
#include "printing/xprn.h"
#include "printing/yazdir.h"
#include "ui/basim.h"
#include "ui/uzunis.h"
#include "ui/yzcsetup.h"

namespace belvani {
namespace {

std::string HazirlikSozu(const char* kalip, int sayfa) {
  std::string soz = kalip;
  if (const auto yer = soz.find('%'); yer != soz.npos) soz.replace(yer, 1, std::to_string(sayfa));
  return soz;
}

// False: it could not be printed, which is told.
bool TekIs(EkranBaglami& baglam, const YzcAyarlari& ayar, std::string_view metin, const MetinBasimi& basim) {
  FormBelgesi belge(ayar, {}, std::string(metin));
  belge.Ayarla(ayar);
  const auto sonuc = UzunIs(baglam, QStringLiteral("Yazdırılıyor…"), [&](Ilerleme& ilerleme) {
    return BelgeYazdir(belge, baglam.baski, baglam.bildirim, &ilerleme);
  });
  if (!sonuc) return false;
  if (*sonuc) {
    if (const std::string& uyari = (*sonuc)->uyari; !uyari.empty()) baglam.bildirim.Uyari(uyari);
    return (*sonuc)->gonderildi;
  }
  const std::string& kusur = sonuc->KusurMetni();
  baglam.bildirim.Uyari(kusur == DosDosyasiAcilamiyor ? basim.acilamadi : kusur);
  return false;
}

bool SayfalariYazdir(EkranBaglami& baglam, const Belge& belge, const MetinBasimi& basim) {
  const std::string metin = belge.Metin();
  if (basim.hazirlik == nullptr) return TekIs(baglam, belge.Ayar(), metin, basim);
  int no = 0;
  for (const std::string_view sayfa : Parcala(metin, '\f')) {
    if (++no > 1 && !baglam.bildirim.TamamMi(HazirlikSozu(basim.hazirlik, no))) return true;
    if (!TekIs(baglam, belge.Ayar(), sayfa, basim)) return false;
  }
  return true;
}

}  // namespace

void BelgeBasSayfaSayfa(EkranBaglami& baglam, Belge& belge, const MetinBasimi& basim) {
  bool yeniden = true;
  while (yeniden) {
    yeniden = false;
    BelgeBas(baglam, belge, [&](YzcKarar karar, const YzcAyarlari& ayar) {
      if (karar != YzcKarar::Yazdir || !ayar.YzcDosMod) return false;
      yeniden = !SayfalariYazdir(baglam, belge, basim);
      return true;
    });
  }
}

}  // namespace belvani
