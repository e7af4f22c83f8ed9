#include "personnel/kimlik.h"

namespace belvani {
namespace {

bool KimlikYaz(Depo& depo, const Kimlik& kimlik) {
  const bool var = depo.KimlikBul(kimlik.kod);
  var ? depo.kimlik.KayitDuzelt() : depo.kimlik.KayitEkle();
  AlanlariYaz(depo.kimlik, kimlik, var ? AlanAdlari{"kod"} : AlanAdlari{});
  return depo.kimlik.KayitYaz();
}

}  // namespace

std::optional<Kimlik> KimlikBul(Oturum& o, std::string_view kod) {
  return KoduBul<Kimlik>(o.depo.db, o.depo.kimlik, kod);
}

std::optional<Kimlik> KimlikGit(Oturum& o, Yon yon, std::string_view simdikiKod) {
  return KodaGit<Kimlik>(o.depo.db, o.depo.kimlik, yon, simdikiKod);
}

std::string KisiAdi(Oturum& o, std::string_view kod) {
  if (!o.depo.SicilBul(TemizKod(kod))) return {};
  return o.depo.sicil.MetinOku("adi") + " " + o.depo.sicil.MetinOku("soyadi");
}

bool KimlikKaydet(Oturum& o, const Kimlik& kimlik, Bildirim& bildirim) {
  Kimlik temiz = kimlik;
  temiz.kod = TemizKod(kimlik.kod);
  if (temiz.kod.empty()) {
    bildirim.Uyari("Personel Kodu Bulunamadı..");
    return false;
  }
  if (const std::string kusur = KayitKusuru(temiz); !kusur.empty()) {
    bildirim.Bilgi(kusur);
    return false;
  }
  if (KimlikYaz(o.depo, temiz)) return true;
  bildirim.Uyari("Kimlik Bilgileri Güncellenemedi");
  return false;
}

bool KimlikSil(Oturum& o, std::string_view kod, Bildirim& bildirim) {
  if (!bildirim.Soru("Personel Kimlik Bilgilerini Silmek İstiyormusunuz ?")) return false;
  const std::string silinen = TemizKod(kod);
  if (!o.depo.KimlikBul(silinen)) {
    bildirim.Bilgi("Silinecek Personel Bulunamadı");
    return false;
  }
  if (IkisindenSil(o.depo.db, o.depo.kimlik, o.depo.sicil, silinen)) return true;
  bildirim.Uyari("Personel Kimlik Bilgisi Silinemedi");
  return false;
}

}  // namespace belvani
