#include "personnel/kart.h"

#include <unistd.h>

#include "core/ayarlar.h"

namespace belvani {
namespace {

std::string KartKusuru(const Sicil& kart) {
  if (kart.kod.empty()) return "Personel Sicil Kodu Hatalı";
  if (kart.girtar.Bos() || kart.girtar.SeriNo() <= 0) return "Giriş Tarihi Hatalı";
  return KayitKusuru(kart);
}

bool KimlikEkle(Imlec& rs, const std::string& kod) {
  YeniKimlik(rs);
  rs.AlanYaz("kod", kod);
  return rs.KayitYaz();
}

bool SicilYaz(Depo& depo, const Sicil& kart) {
  AlanAdlari gorunmeyen = {"cikiskodu", "cikissebebi", "meslekkod"};
  if (depo.SicilBul(kart.kod)) {
    depo.sicil.KayitDuzelt();
    gorunmeyen.insert("kod");  // spelled as the person's other records have it
  } else {
    YeniSicil(depo.sicil);
  }
  AlanlariYaz(depo.sicil, kart, gorunmeyen);
  return depo.sicil.KayitYaz();
}

struct KartYazimi {
  bool kimlik = true;
  bool sicil = false;
};

// One transaction, and no message in it: a box on the screen must not hold the store.
KartYazimi KartYaz(Depo& depo, const Sicil& kart) {
  KartYazimi yazim;
  yazim.sicil = depo.db.Koru(false, [&] {
    Islem islem(depo.db.IcMotor());
    yazim.kimlik = depo.KimlikBul(kart.kod) || KimlikEkle(depo.kimlik, kart.kod);
    if (!SicilYaz(depo, kart)) return false;
    islem.Onayla();
    return true;
  });
  return yazim;
}

}  // namespace

std::optional<Sicil> KartBul(Oturum& o, std::string_view kod) {
  return KoduBul<Sicil>(o.depo.db, o.depo.sicil, kod);
}

std::optional<Sicil> KartGit(Oturum& o, Yon yon, std::string_view simdikiKod) {
  return KodaGit<Sicil>(o.depo.db, o.depo.sicil, yon, simdikiKod);
}

Tutar GosterilenUcret(const Sicil& kart, Tutar asgariUcret) {
  return kart.ucrettipi == AsgariUcretSirasi ? asgariUcret : kart.ucret;
}

bool KartKaydet(Oturum& o, const Sicil& kart, const std::string& yeniResim, Bildirim& bildirim) {
  Sicil temiz = kart;
  temiz.kod = TemizKod(kart.kod);
  if (const std::string kusur = KartKusuru(temiz); !kusur.empty()) {
    bildirim.Bilgi(kusur);
    return false;
  }
  const KartYazimi yazim = KartYaz(o.depo, temiz);
  if (!yazim.kimlik) bildirim.Uyari("Personel Kimlik Bilgileri Kaydedilemedi");
  if (!yazim.sicil) {
    bildirim.Uyari("Personel Kartı Kaydedilemiyor");
    return false;
  }
  if (!yeniResim.empty()) FotoYaz(o, temiz.kod, yeniResim, bildirim);
  return true;
}

bool KartSil(Oturum& o, std::string_view kod, Bildirim& bildirim) {
  if (!bildirim.Soru("Personel Kaydını Silmek İstiyormusunuz ?")) return false;
  const std::string silinen = TemizKod(kod);
  if (silinen.empty()) return false;
  if (!o.depo.SicilBul(silinen)) {
    bildirim.Bilgi("Silinecek Personel Bulunamadı");
    return false;
  }
  if (IkisindenSil(o.depo.db, o.depo.sicil, o.depo.kimlik, silinen)) return true;
  bildirim.Uyari("Personel Kartı Silinemedi");
  return false;
}

bool FotoYaz(Oturum& o, std::string_view kod, const std::string& dosya, Bildirim& bildirim) {
  if (o.depo.FotoYaz(TemizKod(kod), dosya)) return true;
  bildirim.Uyari("Resim Kaydedilemedi\n" + dosya);
  return false;
}

std::optional<std::string> FotoOku(Oturum& o, std::string_view kod) {
  const bool yazilir = ::access(o.PrgPath.c_str(), W_OK) == 0;
  const std::string yol = (yazilir ? o.PrgPath : KullaniciVeriDizini()) + "gelenres";
  if (!o.depo.FotoOku(TemizKod(kod), yol)) return std::nullopt;
  return yol;
}

bool FotoSil(Oturum& o, std::string_view kod, Bildirim& bildirim) {
  if (!o.depo.foto.KayitBul("kod", TemizKod(kod)) || Silindi(o.depo.foto)) return true;
  bildirim.Uyari("Resim Silinemedi");
  return false;
}

}  // namespace belvani
