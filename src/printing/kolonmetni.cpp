#include "printing/kolonmetni.h"

#include <cassert>
#include <utility>

#include "core/asama.h"
#include "printing/kagit.h"
#include "printing/kolonyazici.h"

namespace belvani {
namespace {

class MetinKolonlari final : public KolonYazici {
 public:
  MetinKolonlari(const YzcAyarlari& ayar, Tarih bugun) : KolonYazici(ayar, {}, [bugun] { return bugun; }) {}

  std::string metin;

 private:
  bool SatirVer(const std::string& satir) override {
    metin += satir;
    metin.erase(metin.find_last_not_of(' ') + 1);
    metin += '\n';
    return true;
  }
};

xprnTuru Turu(const RaporKolonu& kolon) {
  if (kolon.Sayisal()) return xprnTuru::Sayi;
  if (kolon.tur == KolonTuru::Tarih) return xprnTuru::Tarih;
  return kolon.tur == KolonTuru::KisaTarih ? xprnTuru::KisaTarih : xprnTuru::Metin;
}

// Days in the forms that only a report knows are texts for the printer.
Hucre Degeri(const Hucre& hucre, const RaporKolonu& kolon) {
  return TarihMi(kolon.tur) && Turu(kolon) == xprnTuru::Metin ? Hucre(HucreMetni(hucre, kolon)) : hucre;
}

}  // namespace

std::string KolonMetni(const Rapor& rapor, const YzcAyarlari& ayar, Tarih bugun, Ilerleme* ilerleme) {
  assert(!rapor.ToplamVar());
  YzcAyarlari basliginki = ayar;
  if (!ayar.YzcBaslikYaz) basliginki.YzcBaslik.clear();
  basliginki.YzcDosMod = true;  // also where the text is asked for beside the drawing
  MetinKolonlari yazici(basliginki, bugun);
  const KagitBicimi bicim = KagitBicimle(rapor, {});
  const auto& kolonlar = rapor.Kolonlar();
  yazici.xprnReset();
  for (std::size_t k = 0; k < kolonlar.size(); ++k)
    yazici.AddKolon(
        {Turu(kolonlar[k]), bicim.basliklar[k][1], bicim.basliklar[k][0], bicim.enler[k], kolonlar[k].ondalik});
  yazici.xprnOpen(KolonYazici::MetinModu);
  bool sayfaDoldu = false;
  yazici.SayfaSonu = [&](int& satir) {
    sayfaDoldu = true;
    satir = 0;
  };
  if (rapor.Satirlar().empty()) yazici.xPrnNewPage({});
  Asama asama(ilerleme, rapor.Satirlar().size());
  for (const RaporSatiri& satir : rapor.Satirlar()) {
    asama.Adim();
    if (std::exchange(sayfaDoldu, false)) yazici.metin += '\f';
    for (std::size_t k = 0; k < kolonlar.size(); ++k) yazici.Bilgi(int(k), Degeri(satir.hucreler[k], kolonlar[k]));
    yazici.LPrn();
  }
  return yazici.xprnClose() ? std::move(yazici.metin) : std::string();
}

}  // namespace belvani
