#include "core/session/kullanicilar.h"

#include "core/store/tablo.h"
#include "core/turkce.h"

namespace belvani {
namespace {

bool Reddet(Bildirim& bildirim, std::string_view metin) {
  bildirim.Bilgi(metin);
  return false;
}

bool KullaniciYaz(Oturum& o, Okunan<Peruser> kullanici, std::string_view sifre, Bildirim& bildirim) {
  kullanici.simdi.pasw = sifre;
  kullanici.simdi.admin = true;
  Veritabani& db = o.depo.db;
  if (db.Koru(false, [&] { return bool(Tablo<Peruser>(db.IcMotor()).Yaz(kullanici)); })) return true;
  bildirim.Uyari("Kullanıcı Tanımları Yazılamıyor");
  return false;
}

bool SifreDegistir(Oturum& o, const Peruser& kullanici, std::string_view eskiSifre, std::string_view yeniSifre,
                   std::string_view onay, Bildirim& bildirim) {
  if (kullanici.pasw != eskiSifre) return Reddet(bildirim, "Eski Şifre Hatalı");
  if (yeniSifre != onay) return Reddet(bildirim, "Yeni Şifre ile Onay Şifre Aynı Olmalı");
  if (const auto kusur = KullaniciKusuru(kullanici.kod, yeniSifre); !kusur.empty()) return Reddet(bildirim, kusur);
  return KullaniciYaz(o, {.ilk = kullanici, .simdi = kullanici}, yeniSifre, bildirim);
}

bool KullaniciEkle(Oturum& o, std::string_view ad, std::string_view yeniSifre, std::string_view onay,
                   Bildirim& bildirim) {
  if (yeniSifre.empty() || onay.empty()) return Reddet(bildirim, "Yeni Şifre ve Onay Şifreyi Girmelisiniz");
  if (yeniSifre != onay) return false;
  if (const auto kusur = KullaniciKusuru(ad, yeniSifre); !kusur.empty()) return Reddet(bildirim, kusur);
  Okunan<Peruser> yeni;
  yeni.simdi.kod = ad;
  return KullaniciYaz(o, yeni, yeniSifre, bildirim);
}

std::optional<Peruser> KullaniciBul(Oturum& o, std::string_view ad) {
  Veritabani& db = o.depo.db;
  return db.Koru(std::optional<Peruser>(), [&] { return Tablo<Peruser>(db.IcMotor()).Bul(std::string(ad)); });
}

}  // namespace

std::string KullaniciKusuru(std::string_view kullanici, std::string_view sifre) {
  if (Kirp(DenetimsizMetin(kullanici)).empty()) return "Kullanıcı adı boş olamaz";
  const auto kusur = [](const AlanTanimi& alan, std::string_view deger) {
    return DegerKusuru(alan, DenetimsizMetin(deger));
  };
  if (const std::string k = kusur(peruser::kod, kullanici); !k.empty()) return "Kullanıcı adı: " + k;
  if (const std::string k = kusur(peruser::pasw, sifre); !k.empty()) return "Şifre: " + k;
  return {};
}

std::vector<Peruser> Kullanicilar(Oturum& o) {
  auto& db = o.depo.db;
  return db.Koru(std::vector<Peruser>(), [&] { return KayitlariOku<Peruser>(db.IcMotor(), "order by kod"); });
}

bool KullaniciKaydet(Oturum& o, std::string_view ad, std::string_view eskiSifre, std::string_view yeniSifre,
                     std::string_view onay, Bildirim& bildirim) {
  if (Kirp(ad).empty()) return Reddet(bildirim, "Kullanıcı Adı Yok");
  const auto kullanici = KullaniciBul(o, ad);
  return kullanici ? SifreDegistir(o, *kullanici, eskiSifre, yeniSifre, onay, bildirim)
                   : KullaniciEkle(o, ad, yeniSifre, onay, bildirim);
}

bool KullaniciSil(Oturum& o, std::string_view ad, Bildirim& bildirim) {
  const std::string kod(ad);
  if (Kirp(kod).empty() || !bildirim.Soru("Kullanıcıyı Silmek İstiyormusunuz")) return false;
  if (!KullaniciBul(o, kod)) return Reddet(bildirim, "Kullanıcı Bulunamadı");
  Veritabani& db = o.depo.db;
  if (Kullanicilar(o).size() < 2 && !bildirim.Soru("Son Kullanıcı da Silinirse Giriş Yapamazsınız\nEminmisiniz"))
    return false;
  const bool silindi = db.Koru(false, [&] {
    Tablo<Peruser>(db.IcMotor()).Sil(kod);
    return true;
  });
  if (!silindi) bildirim.Uyari("Kullanıcı Silinemedi\n" + db.SonHata());
  return silindi;
}

}  // namespace belvani
