#include "accounting/entparaktarim.h"

#include <map>
#include <optional>
#include <set>

#include "accounting/entegrasyonayari.h"
#include "accounting/entparkayit.h"
#include "accounting/kardesdepo.h"
#include "personnel/aktarimyaz.h"

namespace belvani {
namespace {

std::int64_t Sayi(const AktarimDosyasi& dosya, const AktarimSatiri& satir, std::string_view alan) {
  const int sira = dosya.KolonSirasi(alan);
  return sira < 0 ? 0 : TamDegeri(satir.degerler[std::size_t(sira)]);
}

void SatirlariDenetle(AktarimDosyasi& dosya) {
  std::set<std::string> anahtarlar;
  for (const AktarimSatiri& satir : dosya.satirlar) {
    const auto no = std::size_t(Sayi(dosya, satir, "no"));
    const std::string anahtar = BuyukHarf(EntparAnahtari(dosya.Metin(satir, "grup"), no));
    if (!anahtarlar.insert(anahtar).second) dosya.SorunEkle(satir, "no", "dosyada iki kez var: " + anahtar);
  }
}

Entpar DosyaSatiri(const AktarimDosyasi& dosya, const AktarimSatiri& satir, Entpar kayit) {
  HucreleriKoy(kayit, dosya, satir);
  kayit.grupno = EntparAnahtari(kayit.grup, kayit.no);
  return kayit;
}

// The chart of the company's books; nothing, and a warning, while there are none.
Sonuc<std::optional<HesapPlani>> PlanOku(const Oturum& o, Kusurlar& uyarilar) {
  const std::string dizin = KardesDizini(o, MuhasebeSirketi(o));
  if (dizin.empty()) {
    uyarilar.push_back({.metin = "muhasebe şirketi seçilmemiş, hesap kodları denetlenmedi",
                        .kod = "entpar",
                        .satir = 1,
                        .derece = Derece::Uyari});
    return std::optional<HesapPlani>();
  }
  const auto motor = KardesAc(KardesTuru::Muhasebe, dizin, KardesErisimi::YalnizBakis);
  if (!motor) return motor.Kusuru();
  return Koru([&] { return std::optional(HesapPlani::Oku(**motor)); });
}

Durum SatirlariYaz(Motor& motor, AktarimDosyasi& dosya, const std::optional<HesapPlani>& plan, AktarimSonucu& sonuc) {
  if (!dosya.sorunlar.empty()) return Tamam();
  Tablo<Entpar> tablo(motor);
  for (const AktarimSatiri& satir : dosya.satirlar) {
    const std::string anahtar = EntparAnahtari(dosya.Metin(satir, "grup"), std::size_t(Sayi(dosya, satir, "no")));
    const auto ilk = tablo.Bul(anahtar);
    const Entpar kayit = DosyaSatiri(dosya, satir, ilk.value_or(Entpar{}));
    if (plan && kayit.yer != YerYok && plan->Bul(kayit.hesap) == nullptr)
      dosya.SorunEkle(satir, "hesap", kayit.hesap + " Hesabı Muhasebede Bulunamadı..");
    if (!dosya.sorunlar.empty()) continue;
    if (const Durum d = SatirYaz<Entpar>(tablo, {.ilk = ilk, .simdi = kayit}, satir); !d) return d;
    ++(ilk ? sonuc.degisen : sonuc.eklenen);
  }
  return Tamam();
}

}  // namespace

Sonuc<AktarimSonucu> EntparAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul(Entpar::TabloAdi)}, entpar::grup.ad, AnahtarKurali::TekrarEder);
  if (!dosya) return dosya.Kusuru();
  dosya->KolonIste(entpar::no.ad);
  dosya->KolonYasakla(entpar::grupno.ad, "dosyada verilmez, grup ve no sütunlarından yapılır");
  SatirlariDenetle(*dosya);
  Kusurlar uyarilar;
  const auto plan = PlanOku(o, uyarilar);
  if (!plan) return plan.Kusuru();
  return AktarimiKaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) {
    sonuc.uyarilar = uyarilar;
    return SatirlariYaz(o.depo.db.IcMotor(), *dosya, *plan, sonuc);
  });
}

}  // namespace belvani
