#include "core/session/oturum.h"

#include <cmath>
#include <unistd.h>

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "core/sayi.h"
#include "core/session/datayolu.h"
#include "core/session/firmabilgi.h"
#include "core/session/kullanicilar.h"
#include "core/session/renkler.h"
#include "core/session/sirket.h"
#include "core/store/depokopyasi.h"
#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "core/sunucuadresi.h"
#include "core/tables/peruser.h"
#include "core/turkce.h"

namespace belvani {
namespace {

// Of the first run: beside the program, or with the user's own data where the program's directory is not ours to write.
std::string IlkDataPath(const std::string& prgPath) {
  const bool yazilir = ::access(prgPath.c_str(), W_OK) == 0;
  return (yazilir ? prgPath : KullaniciVeriDizini()) + "PerData/";
}

using Baslangic = Sonuc<std::optional<Kusurlar>>;

// The first run of an installation of its own: both paths are recorded.
Baslangic IlkKurulum(Oturum& o) {
  o.DataPath = IlkDataPath(o.PrgPath);
  if (!VeriYolu(o.DataPath).Yarat()) return Kusur{"Data Dizini Yaratılamıyor.\n" + o.DataPath + "\nHata Kodu:0"};
  Kusurlar sozler{KuralKusuru("Yeni Data Dizini Yaratıldı\n" + o.DataPath)};
  for (const auto& [anahtar, deger] : {std::pair("PrgPath", o.PrgPath), std::pair("DataPath", o.DataPath)})
    if (const auto d = MakineAyariYaz(anahtar, deger); !d) sozler.push_back(d.Kusuru());
  return std::optional(std::move(sozler));
}

// A server that is away may come back while its user looks at the question.
Baslangic KurulanaGec(Oturum& o, const std::string& istenen, Bildirim& bildirim) {
  const auto yol = DataYolu(istenen);
  if (!yol) return yol.Kusuru();
  o.DataPath = *yol;
  while (true) {
    const Durum erisim = VeriYolu(o.DataPath).Erisim();
    if (erisim) return std::optional(Kusurlar());
    if (!bildirim.TamamMi(erisim.KusurMetni() + "\nYeniden Denensin mi ?")) return std::optional<Kusurlar>();
  }
}

// A copy may grow as the store of an earlier version that it is of. Once open it needs no names: what a killed program
// would leave of it is nothing.
Durum KopyaAc(Depo& depo, const std::string& yol) {
  const auto kopya = DepoKopyasi::Al(yol);
  if (!kopya) return kopya.Kusuru();
  auto duzenlendi = Koru([&] { kopya->Ac().reset(); });
  if (!duzenlendi) return duzenlendi;
  if (Durum acildi = depo.VeritabaniAc(kopya->Yol()); !acildi) return acildi;
  return Koru([&] { depo.db.IcMotor().SaltOkunurYap(); });
}

// Nobody's look changes anything there: the server itself refuses to write.
Durum SunucudaAc(Oturum& o, const std::string& adres, SirketErisimi erisim) {
  if (Durum acildi = o.depo.VeritabaniAc(adres); !acildi) return acildi;
  return Koru([&] {
    Motor& motor = o.depo.db.IcMotor();
    o.SaltOkunur = erisim == SirketErisimi::YalnizBakis || !motor.Yazilabilir();
    if (o.SaltOkunur) motor.SaltOkunurYap();
  });
}

Durum DepoAc(Oturum& o, const std::string& yol, SirketErisimi erisim) {
  if (SunucuAdresiMi(yol)) return SunucudaAc(o, yol, erisim);
  o.SaltOkunur = erisim == SirketErisimi::YalnizBakis || !DepoYazilir(yol);
  return o.SaltOkunur ? KopyaAc(o.depo, yol) : o.depo.VeritabaniAc(yol);
}

}  // namespace

Sonuc<std::optional<Kusurlar>> Baslat(Oturum& o, const std::string& programDizini, const std::string& komutSatiri,
                                      Bildirim& bildirim) {
  o.Versiyon = ProgramVersiyonu();
  o.BilgisayarAdi = BilgisayarAdiBul();
  o.ParaBirimi = "TL";
  o.KurusBirimi = "KR";
  o.ResimYolu = "image/soft/";
  o.PrgPath = MakineAyari("PrgPath");
  const std::string istenen = komutSatiri.empty() ? MakineAyari("DataPath") : komutSatiri;
  const bool ilkCalisma = o.PrgPath.empty();
  if (ilkCalisma) o.PrgPath = DizinSonu(programDizini);
  // The address of a server is that of a whole installation: nothing is made or recorded for it.
  const bool kurulur = ilkCalisma && !SunucuAdresiMi(istenen);
  auto basladi = kurulur ? IlkKurulum(o) : KurulanaGec(o, istenen, bildirim);
  if (!basladi || !*basladi) return basladi;
  VeriYolu(o.DataPath).Toparla();
  o.Kullanici = "BELVANI";
  o.ListeSirasi = Oturum().ListeSirasi;
  o.ResimKullan = true;
  RenkYukle(o);
  return basladi;
}

Durum SirketAc(Oturum& o, std::string_view sirket, SirketErisimi erisim) {
  const auto ad = SirketBul(o.DataPath, sirket);
  if (!ad) return ad.Kusuru();
  return AdiylaSirketAc(o, *ad, erisim);
}

Durum AdiylaSirketAc(Oturum& o, std::string_view ad, SirketErisimi erisim) {
  const VeriYolu yer = VeriYolu(o.DataPath).Alt(ad);
  SirketKapat(o);
  if (const Durum acildi = DepoAc(o, DepoAdresi(yer), erisim); !acildi) {
    SirketKapat(o);
    return Kusur{"Database Açılamadı: " + DepoAdresi(yer) + "\n" + acildi.KusurMetni()};
  }
  o.FirmaKod = ad;
  o.FirmaDizini = yer.Adres();
  yer.Toparla();
  o.SonKisi.clear();
  return Tamam();
}

void SirketKapat(Oturum& o) {
  o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  o.icerde.reset();
  o.SaltOkunur = false;
}

void IcerdeYaz(Oturum& o, const std::string& kullanici) {
  if (o.SaltOkunur) return;
  o.icerde = IcerdeIsareti::Koy(
      o.FirmaDizini,
      {.kullanici = kullanici, .bilgisayar = o.BilgisayarAdi.empty() ? BilgisayarAdiBul() : o.BilgisayarAdi});
}

Sonuc<Kusurlar> OturumAc(Oturum& o, std::string_view sirket, std::string_view kullanici, std::string_view sifre) {
  const auto kayit = KullaniciBul(o, kullanici);
  if (!kayit || kayit->pasw != sifre) {
    o.depo.TablolariKapat(KapatmaKapsami::YalnizImlecler);
    return KuralKusuru("Kullanıcı Adı veya Kullanıcı Şifresi\n           HATALI");
  }
  Kusurlar kusurlar;
  if (o.SaltOkunur) kusurlar.push_back(KuralKusuru(SaltOkunurUyarisi));
  if (const auto ad = SirketBul(o.DataPath, sirket)) o.FirmaKod = *ad;
  o.Kullanici = Kirp(kullanici);
  IcerdeYaz(o, o.Kullanici);
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
