#include "personnel/aktarim.h"

#include <algorithm>

#include "personnel/hucreler.h"
#include "personnel/kayit.h"

namespace belvani {
namespace {

constexpr std::chrono::seconds KilitBekleme{60};

struct YazmaHatasi {
  int satirNo;
  std::string neden;
};

// The record with the row's columns over what the store has. It is read within the transaction, so nobody can have
// changed it meanwhile.
template <class Kayit>
void Yaz(Tablo<Kayit>& tablo, const std::optional<Kayit>& ilk, const Kayit& yeni, const AktarimDosyasi& dosya,
         const AktarimSatiri& satir) {
  Okunan<Kayit> kayit{.ilk = ilk, .simdi = ilk.value_or(yeni)};
  for (std::size_t i = 0; i < dosya.kolonlar.size(); ++i) {
    const AktarimKolonu& hucre = dosya.kolonlar[i];
    Kayit::HerKolon([&](const auto& kolon) {
      // `kod` belongs to both tables of a person.
      const bool buTablo = hucre.tablo->ad == Kayit::TabloAdi || hucre.alan->ad == "kod";
      if (buTablo && hucre.alan->ad == kolon.ad) UyeyeYaz(kayit.simdi.*kolon.uye, satir.degerler[i]);
    });
  }
  try {
    if (const auto yazilan = tablo.Yaz(kayit); !yazilan) throw YazmaHatasi{satir.satirNo, yazilan.KusurMetni()};
  } catch (const MotorHatasi& h) {
    throw YazmaHatasi{satir.satirNo, h.what()};
  }
}

// Runs `is` in one transaction, unless the file has problems or is only tried out.
template <class Is>
Sonuc<AktarimSonucu> Kaydet(Oturum& o, AktarimDosyasi& dosya, AktarimKipi kip, Is&& is) {
  AktarimSonucu sonuc;
  try {
    Islem islem(o.depo.db.IcMotor(), KilitBekleme);
    is(sonuc);
    sonuc.sorunlar = std::move(dosya.sorunlar);
    if (sonuc.sorunlar.empty() && kip == AktarimKipi::Kaydet) islem.Onayla();
    return sonuc;
  } catch (const YazmaHatasi& h) {
    return Kusur{"satır " + std::to_string(h.satirNo) + ": kayıt yazılamadı: " + h.neden};
  } catch (const MotorHatasi& h) {
    return Kusur{h.what()};
  }
}

void GirisTarihiniDenetle(AktarimDosyasi& dosya, const AktarimSatiri& satir, bool yeni) {
  const int sira = dosya.KolonSirasi("girtar");
  const bool bos = sira < 0 || NullMu(satir.degerler[std::size_t(sira)]);
  if (bos && !dosya.Soylendi(satir.satirNo, "girtar") && (yeni || sira >= 0))
    dosya.sorunlar.push_back({satir.satirNo, "girtar", "Giriş Tarihi Hatalı"});
}

void PersonelleriYaz(Motor& motor, AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Tablo<Sicil> kartlar(motor);
  Tablo<Kimlik> kimlikler(motor);
  for (const auto& satir : dosya.satirlar) {
    const std::string kod = dosya.Metin(satir, "kod");
    const auto kart = kartlar.Bul(kod);
    GirisTarihiniDenetle(dosya, satir, !kart);
    if (!dosya.sorunlar.empty()) continue;
    Yaz(kartlar, kart, {}, dosya, satir);
    Yaz(kimlikler, kimlikler.Bul(kod), YeniKimlik(kod), dosya, satir);
    ++(kart ? sonuc.degisen : sonuc.eklenen);
  }
}

void AileYaz(Motor& motor, AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Tablo<Sicil> kartlar(motor);
  Tablo<Esco> aileler(motor);
  for (const auto& satir : dosya.satirlar)
    if (const std::string kod = dosya.Metin(satir, "kod"); !kod.empty() && !kartlar.Bul(kod))
      dosya.sorunlar.push_back({satir.satirNo, "kod", "bu kodla personel yok: " + kod});
  if (!dosya.sorunlar.empty()) return;
  const auto sil = motor.Hazirla("delete from esco where kod = ?");
  for (const auto& satir : dosya.satirlar) {
    sil->MetinBagla(1, dosya.Metin(satir, "kod"));
    sil->Calistir();
  }
  for (const auto& satir : dosya.satirlar) {
    Yaz(aileler, {}, {}, dosya, satir);
    ++sonuc.eklenen;
  }
}

template <class Kayit>
void TanimYaz(Motor& motor, std::string_view anahtar, const AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Tablo<Kayit> tablo(motor);
  const int sira = dosya.KolonSirasi(anahtar);
  for (const auto& satir : dosya.satirlar) {
    const auto ilk = tablo.Bul(sira < 0 ? Deger(Null{}) : satir.degerler[std::size_t(sira)]);
    Yaz(tablo, ilk, {}, dosya, satir);
    ++(ilk ? sonuc.degisen : sonuc.eklenen);
  }
}

struct TanimTablosu {
  std::string_view ad;
  std::string_view anahtar;  // "": the table's one record
  void (*yaz)(Motor& motor, std::string_view anahtar, const AktarimDosyasi& dosya, AktarimSonucu& sonuc);
};

constexpr TanimTablosu TanimTablolari[] = {
    {"firma", "", &TanimYaz<Firma>},        {"muaf", "no", &TanimYaz<Muaf>},       {"indir", "no", &TanimYaz<Indir>},
    {"sendika", "kod", &TanimYaz<Sendika>}, {"kaztan", "grup", &TanimYaz<Kaztan>},
};

}  // namespace

Sonuc<AktarimSonucu> PersonelAktar(Oturum& o, std::string_view csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("sicil"), TabloBul("kimlik")}, "kod", AnahtarKurali::Tekil);
  if (!dosya) return dosya.Kusuru();
  return Kaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) { PersonelleriYaz(o.depo.db.IcMotor(), *dosya, sonuc); });
}

Sonuc<AktarimSonucu> AileAktar(Oturum& o, std::string_view csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("esco")}, "kod", AnahtarKurali::TekrarEder);
  if (!dosya) return dosya.Kusuru();
  return Kaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) { AileYaz(o.depo.db.IcMotor(), *dosya, sonuc); });
}

Sonuc<AktarimSonucu> TanimAktar(Oturum& o, std::string_view tablo, std::string_view csv, AktarimKipi kip) {
  const auto tanim = std::find_if(std::begin(TanimTablolari), std::end(TanimTablolari),
                                  [&](const TanimTablosu& t) { return t.ad == tablo; });
  if (tanim == std::end(TanimTablolari))
    return Kusur{"bu tabloya dosyadan alınamaz: " + std::string(tablo) + " (firma, muaf, indir, sendika, kaztan)"};
  auto dosya = AktarimDosyasiOku(csv, {TabloBul(tanim->ad)}, tanim->anahtar, AnahtarKurali::Tekil);
  if (!dosya) return dosya.Kusuru();
  if (tanim->anahtar.empty() && dosya->satirlar.size() != 1) return Kusur{"firma dosyasında tek bir satır olmalı"};
  return Kaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) {
    if (dosya->sorunlar.empty()) tanim->yaz(o.depo.db.IcMotor(), tanim->anahtar, *dosya, sonuc);
  });
}

}  // namespace belvani
