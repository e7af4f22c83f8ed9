#include "core/session/kullanicilar.h"

#include "core/store/satirlar.h"
#include "core/turkce.h"

namespace belvani {
namespace {

bool Reddet(Bildirim& bildirim, std::string_view metin) {
  bildirim.Bilgi(metin);
  return false;
}

bool KullaniciYaz(Imlec& peruser, std::string_view sifre, Bildirim& bildirim) {
  peruser.AlanYaz("pasw", std::string(sifre));
  peruser.AlanYaz("admin", true);
  if (peruser.KayitYaz()) return true;
  bildirim.Uyari("Kullanıcı Tanımları Yazılamıyor");
  return false;
}

bool SifreDegistir(Imlec& peruser, std::string_view eskiSifre, std::string_view yeniSifre, std::string_view onay,
                   Bildirim& bildirim) {
  if (peruser.MetinOku("pasw") != eskiSifre) return Reddet(bildirim, "Eski Şifre Hatalı");
  if (yeniSifre != onay) return Reddet(bildirim, "Yeni Şifre ile Onay Şifre Aynı Olmalı");
  if (const auto kusur = KullaniciKusuru(peruser.MetinOku("kod"), yeniSifre); !kusur.empty())
    return Reddet(bildirim, kusur);
  peruser.KayitDuzelt();
  return KullaniciYaz(peruser, yeniSifre, bildirim);
}

bool KullaniciEkle(Imlec& peruser, std::string_view ad, std::string_view yeniSifre, std::string_view onay,
                   Bildirim& bildirim) {
  if (yeniSifre.empty() || onay.empty()) return Reddet(bildirim, "Yeni Şifre ve Onay Şifreyi Girmelisiniz");
  if (yeniSifre != onay) return false;
  if (const auto kusur = KullaniciKusuru(ad, yeniSifre); !kusur.empty()) return Reddet(bildirim, kusur);
  peruser.KayitEkle();
  peruser.AlanYaz("kod", std::string(ad));
  return KullaniciYaz(peruser, yeniSifre, bildirim);
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
  auto& peruser = o.depo.peruser;
  return peruser.KayitBul("kod", std::string(ad)) ? SifreDegistir(peruser, eskiSifre, yeniSifre, onay, bildirim)
                                                  : KullaniciEkle(peruser, ad, yeniSifre, onay, bildirim);
}

bool KullaniciSil(Oturum& o, std::string_view ad, Bildirim& bildirim) {
  const std::string kod(ad);
  if (Kirp(kod).empty() || !bildirim.Soru("Kullanıcıyı Silmek İstiyormusunuz")) return false;
  auto& peruser = o.depo.peruser;
  if (!peruser.KayitBul("kod", kod)) return Reddet(bildirim, "Kullanıcı Bulunamadı");
  if (peruser.KayitSayisi() < 2 && !bildirim.Soru("Son Kullanıcı da Silinirse Giriş Yapamazsınız\nEminmisiniz"))
    return false;
  peruser.KayitSil();
  if (!peruser.KayitBul("kod", kod)) return true;
  bildirim.Uyari("Kullanıcı Silinemedi\n" + o.depo.db.SonHata());
  return false;
}

}  // namespace belvani
