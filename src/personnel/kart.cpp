#include "personnel/kart.h"

#include <unistd.h>

#include "core/ayarlar.h"
#include "personnel/kimlik.h"
#include "personnel/tanimkodlari.h"

namespace belvani {
namespace {

std::optional<Kusur> KartKusuru(const Sicil& kart, bool yeni) {
  if (auto kusur = SicilKoduKusuru(kart.kod, yeni)) return kusur;
  if (kart.girtar.Bos() || kart.girtar.SeriNo() <= 0) return KuralKusuru("Giriş Tarihi Hatalı", sicil::girtar);
  return std::nullopt;
}

// What the card does not show stays as it was read.
Okunan<Sicil> YazilacakKart(const Okunan<Sicil>& kart) {
  Okunan<Sicil> yazilan = kart;
  const Sicil ilk = kart.ilk.value_or(Sicil{});
  yazilan.simdi.kod = YazilacakKod(kart);
  yazilan.simdi.cikiskodu = ilk.cikiskodu;
  yazilan.simdi.cikissebebi = ilk.cikissebebi;
  yazilan.simdi.meslekkod = ilk.meslekkod;
  return yazilan;
}

// A person has an identity record, if an empty one. The card goes on without it.
bool KimlikTamamla(Oturum& o, const std::string& kod) {
  return o.depo.db.Koru(false, [&] {
    auto kimlikler = KisiTablosu<Kimlik>(o);
    return kimlikler.Bul(kod) || bool(kimlikler.Yaz({.ilk = {}, .simdi = YeniKimlik(kod)}));
  });
}

// One transaction, and no message in it: a box on the screen must not hold the store.
KartSonucu KartYaz(Oturum& o, const Okunan<Sicil>& kart) {
  const KartSonucu basarisiz{YazmaEngeli<Sicil>(Kusur{"Personel Kartı Kaydedilemiyor"})};
  return o.depo.db.Koru(basarisiz, [&]() -> KartSonucu {
    Islem islem(o.depo.db.IcMotor());
    if (auto tanimsiz = TanimsizKodlar(o, kart.simdi, kart.ilk); !tanimsiz.empty())
      return YazmaEngeli<Sicil>(std::move(tanimsiz.front()));
    const bool kimlikVar = KimlikTamamla(o, kart.simdi.kod);
    const auto yazilan = KisiTablosu<Sicil>(o).Yaz(kart);
    if (!yazilan) return yazilan.Kusuru();
    islem.Onayla();
    KartYazimi yazim{.kart = *yazilan, .uyarilar = {}};
    if (!kimlikVar)
      yazim.uyarilar.push_back({.metin = "Personel Kimlik Bilgileri Kaydedilemedi", .derece = Derece::Uyari});
    return yazim;
  });
}

}  // namespace

std::optional<Sicil> KartBul(Oturum& o, std::string_view kod) {
  return KoduBul<Sicil>(o, kod);
}

std::optional<Sicil> KartGit(Oturum& o, Yon yon, std::string_view simdikiKod) {
  return KodaGit<Sicil>(o, yon, simdikiKod);
}

Tutar GosterilenUcret(const Sicil& kart, Tutar asgariUcret) {
  return kart.ucrettipi == AsgariUcretSirasi ? asgariUcret : kart.ucret;
}

KartSonucu KartKaydet(Oturum& o, const Okunan<Sicil>& kart, const std::string& yeniResim) {
  const Okunan<Sicil> yazilan = YazilacakKart(kart);
  if (auto kusur = KartKusuru(yazilan.simdi, !yazilan.ilk)) return YazmaEngeli<Sicil>(*std::move(kusur));
  KartSonucu sonuc = KartYaz(o, yazilan);
  if (!sonuc || yeniResim.empty()) return sonuc;
  if (const Durum foto = FotoYaz(o, yazilan.simdi.kod, yeniResim); !foto)
    sonuc->uyarilar.push_back({.metin = foto.KusurMetni(), .derece = Derece::Uyari});
  return sonuc;
}

Sonuc<Silme> KartSil(Oturum& o, std::string_view kod, Bildirim& bildirim) {
  const std::string silinen = TemizKod(kod);
  if (!bildirim.SilinsinMi("Personel Kaydını Silmek İstiyormusunuz ?", KodVeAd(o, silinen))) return Silme::Silinmedi;
  if (silinen.empty()) return Silme::Silinmedi;
  if (!KartBul(o, silinen)) return KuralKusuru("Silinecek Personel Bulunamadı", sicil::kod);
  if (!KisiSil(o, silinen)) return Kusur{"Personel Kartı Silinemedi"};
  return Silme::Silindi;
}

Durum FotoYaz(Oturum& o, std::string_view kod, const std::string& dosya) {
  if (o.depo.FotoYaz(TemizKod(kod), dosya)) return Tamam();
  return Kusur{"Resim Kaydedilemedi\n" + dosya};
}

std::optional<std::string> FotoOku(Oturum& o, std::string_view kod) {
  const bool yazilir = ::access(o.PrgPath.c_str(), W_OK) == 0;
  const std::string yol = (yazilir ? o.PrgPath : KullaniciVeriDizini()) + "gelenres";
  if (!o.depo.FotoOku(TemizKod(kod), yol)) return std::nullopt;
  return yol;
}

Durum FotoSil(Oturum& o, std::string_view kod) {
  const bool yapildi = o.depo.db.Koru(false, [&] {
    KisiTablosu<Foto>(o).Sil(TemizKod(kod));
    return true;
  });
  if (yapildi) return Tamam();
  return Kusur{"Resim Silinemedi"};
}

}  // namespace belvani
