#include "personnel/aktarim.h"

#include <algorithm>

#include "core/tckimlik.h"
#include "personnel/aktarimyaz.h"
#include "personnel/kayit.h"
#include "personnel/tanimkodlari.h"

namespace belvani {
namespace {

// The record with the row's columns over what the store has. It is read within the transaction, so nobody can have
// changed it meanwhile.
template <class Kayit>
Durum Yaz(Tablo<Kayit>& tablo, const std::optional<Kayit>& ilk, const Kayit& yeni, const AktarimDosyasi& dosya,
          const AktarimSatiri& satir) {
  Okunan<Kayit> kayit{.ilk = ilk, .simdi = ilk.value_or(yeni)};
  HucreleriKoy(kayit.simdi, dosya, satir);
  return SatirYaz(tablo, kayit, satir);
}

void TcNoyaBak(const AktarimDosyasi& dosya, const AktarimSatiri& satir, AlanTutamagi alan, Kusurlar& uyarilar) {
  if (std::string uyari = TcUyarisi(dosya.Metin(satir, alan.ad)); !uyari.empty())
    uyarilar.push_back({.metin = std::move(uyari),
                        .alan = alan,
                        .kod = dosya.Metin(satir, "kod"),
                        .satir = satir.satirNo,
                        .derece = Derece::Uyari});
}

void GirisTarihiniDenetle(AktarimDosyasi& dosya, const AktarimSatiri& satir, bool yeni) {
  const int sira = dosya.KolonSirasi("girtar");
  const bool bos = sira < 0 || NullMu(satir.degerler[std::size_t(sira)]);
  if (bos && !dosya.Soylendi(satir.satirNo, "girtar") && (yeni || sira >= 0))
    dosya.SorunEkle(satir, "girtar", "Giriş Tarihi Hatalı");
}

// A group or a union that the row has brought and nobody has defined.
void TanimsizKodlariUyar(Oturum& o, const std::optional<Sicil>& onceki, const std::optional<Sicil>& kart,
                         const AktarimSatiri& satir, AktarimSonucu& sonuc) {
  if (!kart) return;
  for (Kusur& kusur : TanimsizKodlar(o, *kart, onceki)) {
    kusur.kod = kart->kod;
    kusur.satir = satir.satirNo;
    kusur.derece = Derece::Uyari;
    sonuc.uyarilar.push_back(std::move(kusur));
  }
}

Durum PersonelleriYaz(Oturum& o, AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Motor& motor = o.depo.db.IcMotor();
  const bool kodlu = dosya.KolonSirasi(sicil::hesap.ad) >= 0 || dosya.KolonSirasi(sicil::tasno.ad) >= 0;
  Tablo<Sicil> kartlar(motor);
  Tablo<Kimlik> kimlikler(motor);
  for (const auto& satir : dosya.satirlar) {
    const std::string kod = dosya.Metin(satir, "kod");
    const auto kart = kartlar.Bul(kod);
    GirisTarihiniDenetle(dosya, satir, !kart);
    TcNoyaBak(dosya, satir, kimlik::tcno, sonuc.uyarilar);
    if (!dosya.sorunlar.empty()) continue;
    if (Durum d = Yaz(kartlar, kart, {}, dosya, satir); !d) return d;
    if (Durum d = Yaz(kimlikler, kimlikler.Bul(kod), YeniKimlik(kod), dosya, satir); !d) return d;
    if (kodlu) TanimsizKodlariUyar(o, kart, kartlar.Bul(kod), satir, sonuc);
    ++(kart ? sonuc.degisen : sonuc.eklenen);
  }
  return Tamam();
}

// No wage is brought in by a file of something else, and none is lost by an empty cell, which would be a zero.
void UcretDosyasiniDenetle(AktarimDosyasi& dosya, const CsvTablosu& tablo) {
  if (dosya.kolonlar.size() < 2) dosya.sorunlar.push_back({.metin = "ucret: bu sütun dosyada olmalı", .satir = 1});
  for (std::size_t i = 0; i < dosya.kolonlar.size(); ++i) {
    const AlanTanimi* alan = dosya.kolonlar[i].alan;
    if (alan == nullptr || alan->ad == sicil::kod.ad) continue;
    if (alan->ad != sicil::ucret.ad && alan->ad != sicil::ucrettipi.ad && alan->ad != sicil::ucretags.ad)
      dosya.sorunlar.push_back(
          {.metin = std::string(alan->ad) + ": ücret dosyasında olamaz (ucret, ucrettipi, ucretags)", .satir = 1});
    else
      for (std::size_t satir = 0; satir < dosya.satirlar.size(); ++satir)
        if (Kirp(tablo.satirlar[satir].hucreler[i]).empty())
          dosya.SorunEkle(dosya.satirlar[satir], alan->ad, "boş bırakılamaz");
  }
}

Durum UcretleriYaz(Motor& motor, AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Tablo<Sicil> kartlar(motor);
  for (const auto& satir : dosya.satirlar) {
    const std::string kod = dosya.Metin(satir, sicil::kod.ad);
    const auto kart = kartlar.Bul(kod);
    if (!kart && !kod.empty()) dosya.SorunEkle(satir, sicil::kod.ad, "bu kodla personel yok: " + kod);
    if (!dosya.sorunlar.empty()) continue;
    if (Durum d = Yaz(kartlar, kart, {}, dosya, satir); !d) return d;
    ++sonuc.degisen;
    if (kart->cikiskodu != 0)
      sonuc.uyarilar.push_back({.metin = "işten çıkmış",
                                .alan = sicil::cikiskodu,
                                .kod = kart->kod,
                                .satir = satir.satirNo,
                                .derece = Derece::Uyari});
  }
  return Tamam();
}

Durum AileYaz(Motor& motor, AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Tablo<Sicil> kartlar(motor);
  Tablo<Esco> aileler(motor);
  for (const auto& satir : dosya.satirlar)
    if (const std::string kod = dosya.Metin(satir, "kod"); !kod.empty() && !kartlar.Bul(kod))
      dosya.SorunEkle(satir, "kod", "bu kodla personel yok: " + kod);
  if (!dosya.sorunlar.empty()) return Tamam();
  const auto sil = motor.Hazirla("delete from esco where kod = ?");
  for (const auto& satir : dosya.satirlar) {
    sil->MetinBagla(1, dosya.Metin(satir, "kod"));
    sil->Calistir();
  }
  for (const auto& satir : dosya.satirlar) {
    if (Durum d = Yaz(aileler, {}, {}, dosya, satir); !d) return d;
    TcNoyaBak(dosya, satir, esco::tcno, sonuc.uyarilar);
    ++sonuc.eklenen;
  }
  return Tamam();
}

template <class Kayit>
Durum TanimYaz(Motor& motor, std::string_view anahtar, const AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Tablo<Kayit> tablo(motor);
  const int sira = dosya.KolonSirasi(anahtar);
  for (const auto& satir : dosya.satirlar) {
    const auto ilk = tablo.Bul(sira < 0 ? Deger(Null{}) : satir.degerler[std::size_t(sira)]);
    if (Durum d = Yaz(tablo, ilk, {}, dosya, satir); !d) return d;
    ++(ilk ? sonuc.degisen : sonuc.eklenen);
  }
  return Tamam();
}

struct TanimTablosu {
  std::string_view ad;
  std::string_view anahtar;  // "": the table's one record
  Durum (*yaz)(Motor& motor, std::string_view anahtar, const AktarimDosyasi& dosya, AktarimSonucu& sonuc);
};

constexpr TanimTablosu TanimTablolari[] = {
    {"firma", "", &TanimYaz<Firma>},        {"muaf", "no", &TanimYaz<Muaf>},       {"indir", "no", &TanimYaz<Indir>},
    {"sendika", "kod", &TanimYaz<Sendika>}, {"kaztan", "grup", &TanimYaz<Kaztan>},
};

}  // namespace

Sonuc<AktarimSonucu> PersonelAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("sicil"), TabloBul("kimlik")}, "kod", AnahtarKurali::Tekil);
  if (!dosya) return dosya.Kusuru();
  return AktarimiKaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) { return PersonelleriYaz(o, *dosya, sonuc); });
}

Sonuc<AktarimSonucu> UcretAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("sicil")}, "kod", AnahtarKurali::Tekil);
  if (!dosya) return dosya.Kusuru();
  UcretDosyasiniDenetle(*dosya, *CsvOku(csv.icerik));
  return AktarimiKaydet(o, *dosya, kip,
                        [&](AktarimSonucu& sonuc) { return UcretleriYaz(o.depo.db.IcMotor(), *dosya, sonuc); });
}

Sonuc<AktarimSonucu> AileAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("esco")}, "kod", AnahtarKurali::TekrarEder);
  if (!dosya) return dosya.Kusuru();
  return AktarimiKaydet(o, *dosya, kip,
                        [&](AktarimSonucu& sonuc) { return AileYaz(o.depo.db.IcMotor(), *dosya, sonuc); });
}

Sonuc<AktarimSonucu> TanimAktar(Oturum& o, std::string_view tablo, const AktarilanCsv& csv, AktarimKipi kip) {
  const auto tanim = std::find_if(std::begin(TanimTablolari), std::end(TanimTablolari),
                                  [&](const TanimTablosu& t) { return t.ad == tablo; });
  if (tanim == std::end(TanimTablolari))
    return Kusur{"bu tabloya dosyadan alınamaz: " + std::string(tablo) +
                 " (firma, muaf, indir, sendika, kaztan, entpar)"};
  auto dosya = AktarimDosyasiOku(csv, {TabloBul(tanim->ad)}, tanim->anahtar, AnahtarKurali::Tekil);
  if (!dosya) return dosya.Kusuru();
  if (tanim->anahtar.empty() && dosya->satirlar.size() != 1) return Kusur{"firma dosyasında tek bir satır olmalı"};
  return AktarimiKaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) {
    return dosya->sorunlar.empty() ? tanim->yaz(o.depo.db.IcMotor(), tanim->anahtar, *dosya, sonuc) : Tamam();
  });
}

}  // namespace belvani
