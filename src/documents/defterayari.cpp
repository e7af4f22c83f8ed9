#include "documents/defterayari.h"

#include "core/ini.h"
#include "core/sayi.h"

namespace belvani {
namespace {

constexpr std::string_view Bolum = "Bordro";
constexpr std::string_view KolonlarAnahtari = "Brdizin";
constexpr std::string_view YaziTipiAnahtari = "Brdfont";
constexpr std::string_view PuntoAnahtari = "Brdfsize";

constexpr int EnKucukPunto = 4;
constexpr int EnBuyukPunto = 72;

int PuntoOku(const std::string& metin, int varsayilan) {
  const auto punto = TamSayiOku(metin);
  return punto && *punto >= EnKucukPunto && *punto <= EnBuyukPunto ? int(*punto) : varsayilan;
}

}  // namespace

DefterAyari DefterAyariOku(const VeriYolu& sirket) {
  const DefterAyari ilk;
  const IniDosyasi dosya(sirket, SirketAyarDosyasi);
  const std::string yaziTipi = IniOku(Bolum, YaziTipiAnahtari, ilk.yaziTipi, dosya);
  return {
      .kolonlar = DefterAnahtarlariOku(IniOku(Bolum, KolonlarAnahtari, VarsayilanDefterAnahtarlari, dosya)),
      .yaziTipi = yaziTipi.empty() ? ilk.yaziTipi : yaziTipi,
      .punto = PuntoOku(IniOku(Bolum, PuntoAnahtari, "", dosya), ilk.punto),
  };
}

Durum DefterAyariYaz(const DefterAyari& ayar, const VeriYolu& sirket) {
  if (ayar == DefterAyariOku(sirket)) return Tamam();
  const IniDosyasi dosya(sirket, SirketAyarDosyasi);
  if (auto durum = IniYaz(Bolum, KolonlarAnahtari, DefterAnahtarMetni(ayar.kolonlar), dosya); !durum) return durum;
  if (auto durum = IniYaz(Bolum, YaziTipiAnahtari, ayar.yaziTipi, dosya); !durum) return durum;
  return IniYaz(Bolum, PuntoAnahtari, std::to_string(ayar.punto), dosya);
}

void DefterAyariniOku(const VeriYolu& sirket, BelgeSecimi& secim) {
  const DefterAyari ayar = DefterAyariOku(sirket);
  secim.Bul<DefterSecenek>()->kolonlar = ayar.kolonlar;
  *secim.Bul<BelgeYazisi>() = {.yaziTipi = ayar.yaziTipi, .punto = ayar.punto};
}

Durum DefterAyariniYaz(const VeriYolu& sirket, BelgeSecimi& secim) {
  const BelgeYazisi& yazi = *secim.Bul<BelgeYazisi>();
  return DefterAyariYaz(
      {.kolonlar = secim.Bul<DefterSecenek>()->kolonlar, .yaziTipi = yazi.yaziTipi, .punto = yazi.punto}, sirket);
}

}  // namespace belvani
