#include "deductions/ogikosullari.h"

#include <algorithm>

#include "payroll/parametre/mevzuat.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani {

std::optional<Kusur> OgiKosullari::Engel() const {
  if (!OzelGvTablosuBos(tablo)) return std::nullopt;
  return KuralKusuru(
      "Özel Gider İndirimi GV Tablosu boş, hak ediş hesaplanamaz ve kaydedilmez.\nÖGİV Tablosu ekranında tabloyu "
      "doldurunuz ya da yayımlananı alınız.");
}

Yukleme<OzelGiderParametreleri> OgiParametreleriYukle(const Oturum& o, BozukDosya bozuk) {
  const Tek damga = KuruluMevzuatOku(o.DataPath).parametreler.oranlar.DamgaOran;
  return OzelGiderYukle(o.FirmaDizini, VarsayilanOzelGider(o.firma.firmayil, damga), bozuk);
}

OgiKosullari OgiKosullariYukle(const Oturum& o, int yil, BozukDosya bozuk) {
  auto parametreler = OgiParametreleriYukle(o, bozuk);
  auto tablo = OzelGvYukle(o.DataPath);
  OgiKosullari k{.yil = yil,
                 .tablo = tablo.deger,
                 .parametreler = parametreler.deger,
                 .yuvarla = Yuvarlayici(o.firma.paraonda),
                 .uyarilar = std::move(parametreler.uyarilar)};
  std::ranges::move(tablo.uyarilar, std::back_inserter(k.uyarilar));
  if (const auto kusur = OzelGiderParametreKusuru(k.parametreler)) k.uyarilar.push_back("ozgvpar.dat: " + kusur->metin);
  if (std::string soz = OzelGvTablosuSozu(k.tablo, yil); !soz.empty() && !k.Engel())
    k.uyarilar.push_back(std::move(soz));
  return k;
}

std::string OzelGvTablosuSozu(const GvTablosu& tablo, int yil) {
  bool yayimlandi = false;
  for (const Lira lira : {Lira::Yeni, Lira::Eski}) {
    const auto yayimlanan = OzelGvMevzuati(MevzuatDizini(), yil, lira);
    if (!yayimlanan) continue;
    if (*yayimlanan == tablo) return {};
    yayimlandi = true;
  }
  return yayimlandi ? "Özel Gider İndirimi GV Tablosu " + std::to_string(yil) + " yılı için yayımlanandan farklı."
                    : std::to_string(yil) +
                          " yılı için yayımlanmış bir özel gider indirimi tablosu yok; kurulu tablo "
                          "kullanılıyor.";
}

}  // namespace belvani
