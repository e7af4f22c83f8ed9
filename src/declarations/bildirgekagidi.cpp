#include "declarations/bildirgekagidi.h"

#include <algorithm>

#include "core/sayi.h"
#include "core/session/aracibilgi.h"
#include "core/session/firmabilgi.h"
#include "core/turkce.h"
#include "declarations/aylikbildirge.h"

namespace belvani {
namespace {

constexpr int Gruplama = 3;
constexpr std::size_t IlHanesi = 3;

KagitToplami SatirToplami(const BildirgeSatiri& satir) {
  return {.gun = HucreTami(satir.gun),
          .kazanc = HucreTutari(satir.primkazanc),
          .izinGunu = HucreTami(satir.ui),
          .izinUcreti = HucreTutari(satir.uiucret)};
}

void BranslariAl(BildirgeKagidi& kagit, const AylikBildirge& bildirge) {
  const Bildirge& b = bildirge.Tamami();
  kagit.genelToplam = b.prim.genelToplam;
  Tutar analik = b.prim.genelToplam;
  for (std::size_t brans = 0; brans < BransSayisi; ++brans) {
    kagit.branslar[brans] = {.matrah = b.toplamlar.*BransMatrahlari[brans],
                             .oran = b.satirlar.empty() ? "" : bildirge.OranMetni(brans),
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
                       .firma = FirmaOku(oturum),
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

std::string KagitTutari(Tutar tutar, int paraonda) {
  return SayiFormat(YalinMetin(tutar), paraonda, Gruplama);
}

std::string KagitSayisi(int sayi) {
  return sayi == 0 ? std::string() : std::to_string(sayi);
}

std::string KagitTarihi(std::string_view hucre) {
  const Tarih gun = HucreTarihi(hucre);
  return gun.Bos() ? std::string() : IkiHane(gun.Gun()) + " - " + IkiHane(gun.Ay());
}

std::string IlKodu(const Firma& firma) {
  const std::string il(Kirp(firma.il));
  const std::size_t harf = HarfSayisi(il);
  return harf < IlHanesi ? std::string(IlHanesi - harf, '0') + il : il.substr(IlkHarfler(il, harf - IlHanesi).size());
}

}  // namespace belvani
