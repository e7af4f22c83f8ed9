#include "personnel/kimlik.h"

namespace belvani {

std::optional<Kimlik> KimlikBul(Oturum& o, std::string_view kod) {
  return KoduBul<Kimlik>(o, kod);
}

std::optional<Kimlik> KimlikGit(Oturum& o, Yon yon, std::string_view simdikiKod) {
  return KodaGit<Kimlik>(o, yon, simdikiKod);
}

std::string KisiAdi(Oturum& o, std::string_view kod) {
  const auto kart = KoduBul<Sicil>(o, kod);
  return kart ? kart->adi + " " + kart->soyadi : std::string();
}

std::string KodVeAd(Oturum& o, std::string_view kod) {
  const std::string adi = KisiAdi(o, kod);
  return adi.empty() ? std::string(kod) : std::string(kod) + " " + adi;
}

Yazim<Kimlik> KimlikKaydet(Oturum& o, const Okunan<Kimlik>& kimlik) {
  Okunan<Kimlik> yazilan = kimlik;
  yazilan.simdi.kod = YazilacakKod(kimlik);
  if (yazilan.simdi.kod.empty()) return {Kusur{"Personel Kodu Bulunamadı..", kimlik::kod}};
  return KayitYaz(o, yazilan, "Kimlik Bilgileri Güncellenemedi");
}

Sonuc<Silme> KimlikSil(Oturum& o, std::string_view kod, Bildirim& bildirim) {
  const std::string silinen = TemizKod(kod);
  if (!bildirim.SilinsinMi("Personel Kimlik Bilgilerini Silmek İstiyormusunuz ?", KodVeAd(o, silinen)))
    return Silme::Silinmedi;
  if (!KimlikBul(o, silinen)) return KuralKusuru("Silinecek Personel Bulunamadı", kimlik::kod);
  if (!KisiSil(o, silinen)) return Kusur{"Personel Kimlik Bilgisi Silinemedi"};
  return Silme::Silindi;
}

}  // namespace belvani
