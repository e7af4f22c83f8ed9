#include "declarations/bildirgekagidi.h"

#include <algorithm>

#include "core/sayi.h"
#include "core/session/aracibilgi.h"
#include "declarations/aylikbildirge.h"

namespace belvani {
namespace {

constexpr int Gruplama = 3;

KagitToplami SatirToplami(const BildirgeSatiri& satir) {
  return {.gun = satir.gun.value_or(0),
          .kazanc = satir.primkazanc.value_or(Tutar()),
          .izinGunu = satir.ui.value_or(0),
          .izinUcreti = satir.uiucret.value_or(Tutar())};
}

void BranslariAl(BildirgeKagidi& kagit, const AylikBildirge& bildirge) {
  const Bildirge& b = bildirge.Tamami();
  kagit.genelToplam = b.prim.genelToplam;
  Tutar analik = b.prim.genelToplam;
  for (std::size_t brans = 0; brans < BransSayisi; ++brans) {
    kagit.branslar[brans] = {.matrah = b.toplamlar.*BransMatrahlari[brans],
                             .oran = b.satirlar.empty() ? std::nullopt : std::optional(b.PrimOran[brans]),
                             .prim = b.prim.primler[brans]};
    if (brans != AnalikBransi) analik -= b.prim.primler[brans];
  }
  kagit.branslar[AnalikBransi].prim = analik;
}

}  // namespace

BildirgeKagidi KagitHazirla(const AylikBildirge& bildirge, Oturum& oturum) {
  const Bildirge& b = bildirge.Tamami();
  const BildirgeSecimi& secim = b.secim;
  BildirgeKagidi kagit{.yil = secim.yil,
                       .ay = secim.ay,
                       .mahiyet = secim.mahiyet,
                       .firma = oturum.firma,
                       .arac = AraciOku(oturum),
                       .muhasebeci = MuhasebeciOku(oturum),
                       .toplamlar = b.toplamlar,
                       .satirlar = b.satirlar,
                       .paraonda = oturum.firma.paraonda};
  if (secim.belgeTuru > 0) kagit.belgeTuru = IkiHane(bildirge.BelgeTuru());
  if (secim.kanun > 0) kagit.kanun = bildirge.KanunSecenekleri()[std::size_t(secim.kanun)];
  BranslariAl(kagit, bildirge);
  return kagit;
}

KagitToplami& KagitToplami::operator+=(const KagitToplami& t) {
  gun += t.gun;
  kazanc += t.kazanc;
  izinGunu += t.izinGunu;
  izinUcreti += t.izinUcreti;
  return *this;
}

std::vector<KagitSayfasi> SayfalaraBol(const std::vector<BildirgeSatiri>& satirlar) {
  std::vector<KagitSayfasi> sayfalar;
  do {
    KagitSayfasi sayfa;
    std::size_t kisi = IlkSayfaKisisi;
    if (!sayfalar.empty()) {
      const KagitSayfasi& onceki = sayfalar.back();
      sayfa = {.no = onceki.no + 1, .ilk = onceki.son, .devir = onceki.dahil};
      kisi = DevamSayfasiKisisi;
    }
    sayfa.son = std::min(satirlar.size(), sayfa.ilk + kisi);
    for (std::size_t i = sayfa.ilk; i < sayfa.son; ++i) sayfa.sayfa += SatirToplami(satirlar[i]);
    sayfa.dahil = sayfa.devir;
    sayfa.dahil += sayfa.sayfa;
    sayfalar.push_back(sayfa);
  } while (sayfalar.back().son < satirlar.size());
  return sayfalar;
}

std::string KagitTutari(std::optional<Tutar> tutar, int paraonda) {
  return tutar ? SayiFormat(YalinMetin(*tutar), paraonda, Gruplama) : std::string();
}

std::string KagitSayisi(std::optional<int> sayi) {
  return sayi.value_or(0) == 0 ? std::string() : std::to_string(*sayi);
}

std::string KagitTarihi(Tarih gun) {
  return gun.Bos() ? std::string() : IkiHane(gun.Gun()) + " - " + IkiHane(gun.Ay());
}

}  // namespace belvani
