#include "core/session/yenisirket.h"

#include "core/session/firmabilgi.h"
#include "core/session/kullanicilar.h"
#include "core/session/paylasim.h"
#include "core/session/sinifbakimi.h"
#include "core/session/sirket.h"
#include "core/store/tablo.h"
#include "core/store/yantablolar.h"
#include "core/tables/peruser.h"
#include "core/turkce.h"

namespace belvani {
namespace {

bool IlkKullaniciYaz(Veritabani& db, const YeniSirket& yeni) {
  Okunan<Peruser> ilk;
  ilk.simdi = {.kod = std::string(Kirp(yeni.kullanici)), .pasw = yeni.sifre, .admin = true};
  return db.Koru(false, [&] { return bool(Tablo<Peruser>(db.IcMotor()).Yaz(ilk)); });
}

Durum KartYaz(Oturum& o, const YeniSirket& yeni) {
  if (Durum ilk = FirmaIlkKayit(o); !ilk) return ilk;
  Okunan<Firma> kart = FirmaDuzenle(o);
  yeni.kart(kart.simdi);
  if (const auto yazilan = FirmaKaydet(o, kart); !yazilan) return Kusur(yazilan.Kusuru());
  return Tamam();
}

Durum Doldur(Oturum& o, const std::string& yol, DepoYeri yer, const YeniSirket& yeni) {
  Depo& depo = o.depo;
  const auto kusur = [&](const std::string& metin) { return Kusur{metin + ": " + depo.db.SonHata()}; };
  if (Durum yaratildi = depo.VeritabaniYarat(yol); !yaratildi) return kusur(yaratildi.KusurMetni());
  if (const Durum acildi = depo.VeritabaniAc(yol); !acildi) return Kusur{"Database Açılamadı\n" + acildi.KusurMetni()};
  const bool yanlarinda = depo.db.Koru(false, [&] {
    OncekileriHazirla(depo.db.IcMotor());
    AyrilanlariHazirla(depo.db.IcMotor());
    return true;
  });
  if (!yanlarinda) return kusur("Tablolar Yaratılamadı");
  if (!IlkKullaniciYaz(depo.db, yeni)) return kusur("Kullanıcı Eklenemedi");
  if (const Durum yazildi = KartYaz(o, yeni); !yazildi) return kusur(yazildi.KusurMetni());
  depo.TablolariKapat(KapatmaKapsami::YalnizImlecler);
  // All into the one file: a directory that is renamed with a journal in it would not be whole.
  const bool tekDosya = depo.db.Koru(false, [&] {
    depo.db.IcMotor().YerKoy(yer);
    return true;
  });
  return tekDosya ? Tamam() : Durum(kusur("Database Kapatılamadı"));
}

Kusur Yaratilamadi(const VeriYolu& yer, const Durum& neden) {
  return Kusur{(yer.Sunucuda() ? "Şirket Sunucuda Yaratılamıyor: " : "Şirket Dizini Yaratılamıyor: ") + yer.Adres() +
               "\n" + neden.KusurMetni()};
}

Durum AdinaKoy(YarimYer& yarim, const VeriYolu& veri, const std::string& ad) {
  const Durum konuldu = yarim.Adlandir();
  if (konuldu) return Tamam();
  if (veri.AltVar(ad)) return Kusur{"Bu adda bir şirket var: " + ad};
  return Yaratilamadi(veri.Alt(ad), konuldu);
}

}  // namespace

Durum SirketKur(Oturum& o, const YeniSirket& yeni) {
  const auto ad = SirketAdi(yeni.ad);
  if (!ad) return ad.Kusuru();
  if (!UyanSirketler(o.DataPath, *ad).empty()) return Kusur{"Bu adda bir şirket var: " + *ad};
  if (auto kusur = KullaniciKusuru(yeni.kullanici, yeni.sifre)) return *std::move(kusur);

  const VeriYolu veri = o.DataPath, yer = veri.Alt(*ad);
  const auto yarim = veri.YarimAlt(*ad);
  if (!yarim) return Yaratilamadi(yer, yarim.Kusuru());
  const Firma oncekiKart = o.firma;
  const bool kartVardi = o.firmaVar;
  Durum kuruldu = Doldur(o, DepoAdresi((*yarim)->Adres()), YeniDepoYeri(veri), yeni);
  SirketKapat(o);
  if (kuruldu) kuruldu = AdinaKoy(**yarim, veri, *ad);
  if (!kuruldu) {
    o.firma = oncekiKart;
    o.firmaVar = kartVardi;
    return kuruldu;
  }
  // Nothing older has touched it; without the mark its user is asked once, and that is all.
  (void)SinifBakimiYaz(yer, SinifBakimi::Bakildi);
  return SirketAc(o, *ad);
}

Durum SirketOlustur(Oturum& o, std::string_view sirket, std::string_view kullanici, std::string_view sifre) {
  return SirketKur(o, {.ad = std::string(sirket), .kullanici = std::string(kullanici), .sifre = std::string(sifre)});
}

}  // namespace belvani
