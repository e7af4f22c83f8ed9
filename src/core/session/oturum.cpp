#include "core/session/oturum.h"

#include <cmath>
#include <unistd.h>

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "core/sayi.h"
#include "core/session/firmabilgi.h"
#include "core/session/kullanicilar.h"
#include "core/session/renkler.h"
#include "core/session/sirket.h"
#include "core/store/tablo.h"
#include "core/tables/peruser.h"
#include "core/turkce.h"

namespace belvani {
namespace {

// Of the first run: beside the program, or with the user's own data where the program's directory is not ours to write.
std::string IlkDataPath(const std::string& prgPath) {
  const bool yazilir = ::access(prgPath.c_str(), W_OK) == 0;
  return (yazilir ? prgPath : KullaniciVeriDizini()) + "PerData/";
}

bool DataDiziniYarat(const std::string& dataPath, Bildirim& bildirim) {
  if (!VeriYolu(dataPath).Yarat()) {
    bildirim.Uyari("Data Dizini Yaratılamıyor.\n" + dataPath + "\nHata Kodu:0");
    return false;
  }
  bildirim.Bilgi("Yeni Data Dizini Yaratıldı\n" + dataPath);
  return true;
}

bool IlkKullaniciYaz(Veritabani& db, std::string_view kullanici, std::string_view sifre) {
  Okunan<Peruser> ilk;
  ilk.simdi = {.kod = std::string(kullanici), .pasw = std::string(sifre), .admin = true};
  return db.Koru(false, [&] { return bool(Tablo<Peruser>(db.IcMotor()).Yaz(ilk)); });
}

// The store of a new company with its first user, open; on failure there is no store.
Durum DepoKur(Depo& depo, const std::string& yol, std::string_view kullanici, std::string_view sifre,
              Bildirim& bildirim) {
  if (const Durum yaratildi = depo.VeritabaniYarat(yol); !yaratildi) return yaratildi;
  const bool acildi = depo.VeritabaniAc(yol, bildirim);
  if (acildi && IlkKullaniciYaz(depo.db, kullanici, sifre)) return Tamam();
  depo.VeritabaniKaldir(yol);
  return Kusur{(acildi ? "Kullanıcı Eklenemedi: " : "Database Açılamadı: ") + depo.db.SonHata()};
}

}  // namespace

bool Baslat(Oturum& o, const std::string& programDizini, const std::string& komutSatiri, Bildirim& bildirim) {
  o.Versiyon = ProgramVersiyonu();
  o.BilgisayarAdi = BilgisayarAdiBul();
  o.ParaBirimi = "TL";
  o.KurusBirimi = "KR";
  o.ResimYolu = "image/soft/";
  o.PrgPath = MakineAyari("PrgPath");
  o.DataPath = DizinSonu(komutSatiri.empty() ? MakineAyari("DataPath") : komutSatiri);
  if (o.PrgPath.empty()) {
    o.PrgPath = DizinSonu(programDizini);
    o.DataPath = IlkDataPath(o.PrgPath);
    if (!DataDiziniYarat(o.DataPath, bildirim)) return false;
    for (const auto& [anahtar, deger] : {std::pair("PrgPath", o.PrgPath), std::pair("DataPath", o.DataPath)})
      if (const auto d = MakineAyariYaz(anahtar, deger); !d) bildirim.Uyari(d.KusurMetni());
  }
  o.Kullanici = "BELVANI";
  o.ListeSirasi = 1;
  o.ResimKullan = true;
  RenkYukle(o);
  return true;
}

Durum SirketAc(Oturum& o, std::string_view sirket, Bildirim& bildirim) {
  const auto dizin = SirketDizini(o.DataPath, sirket);
  if (!dizin) return dizin.Kusuru();
  if (!o.depo.VeritabaniAc(DepoAdresi(*dizin), bildirim)) {
    o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
    return Kusur{"Database Açılamadı: " + DepoAdresi(*dizin) + "\n" + o.depo.db.SonHata()};
  }
  o.FirmaKod = *SirketAdi(sirket);
  o.FirmaDizini = *dizin;
  return Tamam();
}

Durum SirketOlustur(Oturum& o, std::string_view sirket, std::string_view kullanici, std::string_view sifre,
                    Bildirim& bildirim) {
  const auto ad = SirketAdi(sirket);
  if (!ad) return ad.Kusuru();
  if (SirketDizini(o.DataPath, *ad)) return Kusur{"Bu adda bir şirket var: " + *ad};
  if (auto kusur = KullaniciKusuru(kullanici, sifre)) return *std::move(kusur);

  const VeriYolu yer = VeriYolu(o.DataPath).Alt(*ad);
  if (!yer.Yarat()) return Kusur{"Şirket Dizini Yaratılamıyor: " + yer.Adres()};
  if (const Durum kuruldu = DepoKur(o.depo, DepoAdresi(yer), kullanici, sifre, bildirim); !kuruldu) {
    (void)yer.Kaldir();  // no half company stays behind; a place into which others have put something meanwhile does
    return kuruldu;
  }
  o.FirmaKod = *ad;
  o.FirmaDizini = yer.Adres();
  if (const Durum yazildi = FirmaIlkKayit(o); !yazildi) bildirim.KusuruGoster(yazildi.Kusuru());
  return Tamam();
}

Sonuc<Kusurlar> OturumAc(Oturum& o, std::string_view sirket, std::string_view kullanici, std::string_view sifre) {
  Veritabani& db = o.depo.db;
  const auto kayit =
      db.Koru(std::optional<Peruser>(), [&] { return Tablo<Peruser>(db.IcMotor()).Bul(std::string(kullanici)); });
  if (!kayit || kayit->pasw != sifre) {
    o.depo.TablolariKapat(KapatmaKapsami::YalnizImlecler);
    return KuralKusuru("Kullanıcı Adı veya Kullanıcı Şifresi\n           HATALI");
  }
  Kusurlar kusurlar;
  o.FirmaKod = BuyukHarf(Kirp(sirket));
  o.Kullanici = kullanici;
  for (const auto& [anahtar, deger] : {std::pair("lastfirm", o.FirmaKod), std::pair("lastuser", o.Kullanici)})
    if (const auto d = KullaniciAyariYaz(anahtar, deger); !d) kusurlar.push_back(d.Kusuru());
  if (!FirmaYukle(o)) {
    o.firma.ondeger = KartsizFirma().ondeger;
    kusurlar.push_back(KuralKusuru("Firma Bilgilerini Vermeyi Unutmayınız."));
  }
  return kusurlar;
}

Firma KartsizFirma() {
  Firma kart;
  kart.ondeger = "Personel";
  kart.paraonda = 2;
  return kart;
}

bool FirmaYukle(Oturum& o) {
  auto kart = FirmaDuzenle(o).ilk;
  o.firmaVar = kart.has_value();
  if (kart) o.firma = std::move(*kart);
  return o.firmaVar;
}

Durum FirmaIlkKayit(Oturum& o) {
  Okunan<Firma> firma = FirmaDuzenle(o);
  firma.simdi = YeniFirma();
  firma.simdi.tersfirma = firma.ilk.value_or(Firma{}).tersfirma;
  if (const auto yazilan = FirmaKaydet(o, firma); !yazilan) return Kusur(yazilan.Kusuru());
  return Tamam();
}

std::string VersiyonMetni(Tek versiyon) {
  constexpr double Olcek = 10'000;
  return SayiMetni(std::round(versiyon.Sayi() * Olcek) / Olcek);
}

Durum VersiyonKontrol(Oturum& o) {
  const Tek depoVersiyonu = o.depo.Versiyon();
  if (depoVersiyonu == o.Versiyon) return Tamam();
  return Kusur{"Program Versiyonu ile Database Versiyonu Farklı...\nProgram Versiyon:" + VersiyonMetni(o.Versiyon) +
               "\nDatabase Versiyon:" + VersiyonMetni(depoVersiyonu) + "\nUpdate Programını Çalıştırınız..."};
}

}  // namespace belvani
