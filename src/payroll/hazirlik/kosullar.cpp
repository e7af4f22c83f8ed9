#include "payroll/hazirlik/kosullar.h"

#include "core/store/koru.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani {
namespace {

constexpr double VarsayilanIsSaati = 8;

std::string Satirlar(const char* baslik, const std::vector<std::string>& uyarilar) {
  std::string metin = baslik;
  for (const auto& u : uyarilar) metin += "\n  " + u;
  return metin;
}

}  // namespace

Sonuc<YasalParametreler> YasalParametreleriAl(const KuruluMevzuat& kurulu) {
  const MevzuatGorusu gorus = KullanilabilirMi(kurulu);
  if (gorus.hal == MevzuatHali::Uygun) return kurulu.parametreler;
  return Kusur{gorus.Metin() + "\nDönemin parametrelerini kurunuz: belvani-cli parametre-kur --donem YYYY-AA"};
}

Sonuc<YasalParametreler> YasalParametreleriAl(const VeriYolu& veri) {
  return YasalParametreleriAl(KuruluMevzuatOku(veri));
}

void KartKosullariniKoy(Kosullar& k, const Firma& firma) {
  k.donem.tur = firma.tersfirma ? DonemTuru::Ters : DonemTuru::Takvim;
  k.IsSaatiYazili = firma.issaati.Sayi() > 0;
  k.IsSaati = k.IsSaatiYazili ? firma.issaati : Tek(VarsayilanIsSaati);
  k.TehlikeOran = TehlikeOrani(firma.tehlike, firma.sinif.Sayi());
  k.paraonda = firma.paraonda;
}

Sonuc<Kosullar> KosullariYukle(Oturum& o, const YasalParametreler& yasal, int yil, int ay) {
  return Koru([&]() -> Sonuc<Kosullar> {
    const FirmaParametreleri parametreler = FirmaDosyalariYukle(o);
    if (!parametreler.uyarilar.empty())
      return Kusur{Satirlar("Şirketin parametre dosyaları kullanılamıyor:", parametreler.uyarilar)};
    return KosullariKur(o, yasal, parametreler, yil, ay);
  });
}

Sonuc<Kosullar> KosullariKur(const Oturum& o, const YasalParametreler& yasal, const FirmaParametreleri& parametreler,
                             int yil, int ay) {
  if (!o.firmaVar) return KuralKusuru("İşyeri Tanımlamaları Yapılmamış");
  Kosullar k;
  k.yasal = yasal;
  k.firma = parametreler;
  k.donem.yil = yil;
  k.donem.ay = ay;
  k.uygulama = UygulamaBul(yasal.kanunlar, ay, yil);
  KartKosullariniKoy(k, o.firma);
  return k;
}

}  // namespace belvani
