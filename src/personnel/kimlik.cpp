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

Yazim<Kimlik> KimlikKaydet(Oturum& o, const Okunan<Kimlik>& kimlik) {
  Okunan<Kimlik> yazilan = kimlik;
  yazilan.simdi.kod = YazilacakKod(kimlik);
  if (yazilan.simdi.kod.empty()) return {Kusur{"Personel Kodu Bulunamadı..", kimlik::kod}};
  return KayitYaz(o, yazilan, "Kimlik Bilgileri Güncellenemedi");
}

Sonuc<Silme> KimlikSil(Oturum& o, std::string_view kod, Bildirim& bildirim) {
  if (!bildirim.Soru("Personel Kimlik Bilgilerini Silmek İstiyormusunuz ?")) return Silme::Silinmedi;
  const std::string silinen = TemizKod(kod);
  if (!KimlikBul(o, silinen)) return KuralKusuru("Silinecek Personel Bulunamadı", kimlik::kod);
  if (!KisiSil(o, silinen)) return Kusur{"Personel Kimlik Bilgisi Silinemedi"};
  return Silme::Silindi;
}

}  // namespace belvani
