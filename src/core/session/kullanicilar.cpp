#include "core/session/kullanicilar.h"

#include "core/store/tablo.h"
#include "core/turkce.h"

namespace belvani {
namespace {

Sonuc<bool> KullaniciYaz(Oturum& o, Okunan<Peruser> kullanici, const std::string& sifre) {
  if (auto kusur = KullaniciKusuru(kullanici.simdi.kod, sifre)) return *std::move(kusur);
  kullanici.simdi.pasw = sifre;
  kullanici.simdi.admin = true;
  Veritabani& db = o.depo.db;
  if (db.Koru(false, [&] { return bool(Tablo<Peruser>(db.IcMotor()).Yaz(kullanici)); })) return true;
  return Kusur{"Kullanıcı Tanımları Yazılamıyor"};
}

Sonuc<bool> SifreDegistir(Oturum& o, const Peruser& kullanici, const KullaniciGirisi& giris) {
  if (kullanici.pasw != giris.eski) return KuralKusuru("Eski Şifre Hatalı", kullanicigirisi::eski);
  if (giris.yeni != giris.onay) return KuralKusuru("Yeni Şifre ile Onay Şifre Aynı Olmalı", kullanicigirisi::onay);
  return KullaniciYaz(o, {.ilk = kullanici, .simdi = kullanici}, giris.yeni);
}

Sonuc<bool> KullaniciEkle(Oturum& o, const KullaniciGirisi& giris) {
  if (giris.yeni.empty() || giris.onay.empty())
    return KuralKusuru("Yeni Şifre ve Onay Şifreyi Girmelisiniz",
                       giris.yeni.empty() ? kullanicigirisi::yeni : kullanicigirisi::onay);
  if (giris.yeni != giris.onay) return false;
  Okunan<Peruser> yeni;
  yeni.simdi.kod = Kirp(giris.ad);
  return KullaniciYaz(o, yeni, giris.yeni);
}

}  // namespace

std::optional<Kusur> KullaniciKusuru(std::string_view kullanici, std::string_view sifre) {
  if (Kirp(DenetimsizMetin(kullanici)).empty()) return KuralKusuru("Kullanıcı adı boş olamaz", kullanicigirisi::ad);
  const auto kusur = [](const AlanTanimi& alan, std::string_view deger) {
    return DegerKusuru(alan, DenetimsizMetin(deger));
  };
  if (const std::string k = kusur(peruser::kod, Kirp(kullanici)); !k.empty())
    return KuralKusuru("Kullanıcı adı: " + k, kullanicigirisi::ad);
  if (const std::string k = kusur(peruser::pasw, sifre); !k.empty())
    return KuralKusuru("Şifre: " + k, kullanicigirisi::yeni);
  return std::nullopt;
}

std::optional<Peruser> KullaniciBul(Oturum& o, std::string_view ad) {
  Veritabani& db = o.depo.db;
  return db.Koru(std::optional<Peruser>(), [&] {
    Tablo<Peruser> kullanicilar(db.IcMotor());
    auto bulunan = kullanicilar.Bul(std::string(ad));
    return bulunan ? bulunan : kullanicilar.Bul(std::string(Kirp(ad)));
  });
}

std::vector<Peruser> Kullanicilar(Oturum& o) {
  auto& db = o.depo.db;
  return db.Koru(std::vector<Peruser>(), [&] { return KayitlariOku<Peruser>(db.IcMotor(), "order by kod"); });
}

Sonuc<bool> KullaniciKaydet(Oturum& o, const KullaniciGirisi& giris) {
  if (Kirp(giris.ad).empty()) return KuralKusuru("Kullanıcı Adı Yok", kullanicigirisi::ad);
  const auto kullanici = KullaniciBul(o, giris.ad);
  return kullanici ? SifreDegistir(o, *kullanici, giris) : KullaniciEkle(o, giris);
}

Sonuc<Silme> KullaniciSil(Oturum& o, std::string_view ad, Bildirim& bildirim) {
  if (Kirp(ad).empty() ||
      !bildirim.SilinsinMi("Kullanıcıyı Silmek İstiyormusunuz", Kirp(ad), SoruDugmeleri::TamamIptal))
    return Silme::Silinmedi;
  const auto kullanici = KullaniciBul(o, ad);
  if (!kullanici) return KuralKusuru("Kullanıcı Bulunamadı", kullanicigirisi::ad);
  Veritabani& db = o.depo.db;
  constexpr auto sonSoru = "Son Kullanıcı da Silinirse Giriş Yapamazsınız\nEminmisiniz";
  if (Kullanicilar(o).size() < 2 && !bildirim.SilinsinMi(sonSoru, {}, SoruDugmeleri::TamamIptal))
    return Silme::Silinmedi;
  const bool silindi = db.Koru(false, [&] {
    Tablo<Peruser>(db.IcMotor()).Sil(kullanici->kod);
    return true;
  });
  if (!silindi) return Kusur{"Kullanıcı Silinemedi\n" + db.SonHata()};
  return Silme::Silindi;
}

}  // namespace belvani
