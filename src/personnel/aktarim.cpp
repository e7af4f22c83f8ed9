#include "personnel/aktarim.h"

#include <algorithm>

#include "personnel/hucreler.h"
#include "personnel/kayit.h"

namespace belvani {
namespace {

constexpr std::chrono::seconds KilitBekleme{60};

void AlanlariYaz(Imlec& rs, const TabloTanimi& tablo, const AktarimDosyasi& dosya, const AktarimSatiri& satir) {
  for (std::size_t i = 0; i < dosya.kolonlar.size(); ++i) {
    const AlanTanimi* alan = dosya.kolonlar[i].alan;
    // `kod` belongs to both tables of a person.
    const bool buTablo = dosya.kolonlar[i].tablo == &tablo || alan->ad == "kod";
    if (buTablo && tablo.AlanBul(alan->ad) != nullptr) rs.AlanYaz(alan->ad, satir.degerler[i]);
  }
}

struct YazmaHatasi {
  int satirNo;
};

void Yaz(Imlec& rs, int satirNo) {
  if (!rs.KayitYaz()) throw YazmaHatasi{satirNo};
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
    return Kusur{"satır " + std::to_string(h.satirNo) + ": kayıt yazılamadı: " + o.depo.db.SonHata()};
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

void PersonelYaz(Depo& depo, AktarimDosyasi& dosya, const AktarimSatiri& satir, AktarimSonucu& sonuc) {
  const std::string kod = dosya.Metin(satir, "kod");
  const bool var = depo.SicilBul(kod);
  GirisTarihiniDenetle(dosya, satir, !var);
  if (!dosya.sorunlar.empty()) return;
  var ? depo.sicil.KayitDuzelt() : YeniSicil(depo.sicil);
  AlanlariYaz(depo.sicil, *TabloBul("sicil"), dosya, satir);
  Yaz(depo.sicil, satir.satirNo);
  depo.KimlikBul(kod) ? depo.kimlik.KayitDuzelt() : YeniKimlik(depo.kimlik);
  AlanlariYaz(depo.kimlik, *TabloBul("kimlik"), dosya, satir);
  Yaz(depo.kimlik, satir.satirNo);
  ++(var ? sonuc.degisen : sonuc.eklenen);
}

void AileYaz(Depo& depo, AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  for (const auto& satir : dosya.satirlar)
    if (const std::string kod = dosya.Metin(satir, "kod"); !kod.empty() && !depo.SicilBul(kod))
      dosya.sorunlar.push_back({satir.satirNo, "kod", "bu kodla personel yok: " + kod});
  if (!dosya.sorunlar.empty()) return;
  const auto sil = depo.db.IcMotor().Hazirla("delete from esco where kod = ?");
  for (const auto& satir : dosya.satirlar) {
    sil->MetinBagla(1, dosya.Metin(satir, "kod"));
    sil->Calistir();
  }
  for (const auto& satir : dosya.satirlar) {
    depo.esco.KayitEkle();
    AlanlariYaz(depo.esco, *TabloBul("esco"), dosya, satir);
    Yaz(depo.esco, satir.satirNo);
    ++sonuc.eklenen;
  }
}

struct TanimTablosu {
  std::string_view ad;
  std::string_view anahtar;  // "": the table's one record
  Imlec Depo::*rs;
};

constexpr TanimTablosu TanimTablolari[] = {
    {"firma", "", &Depo::firma},        {"muaf", "no", &Depo::muaf},       {"indir", "no", &Depo::indir},
    {"sendika", "kod", &Depo::sendika}, {"kaztan", "grup", &Depo::kaztan},
};

void TanimYaz(Depo& depo, const TanimTablosu& tanim, const AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Imlec& rs = depo.*tanim.rs;
  const int anahtar = dosya.KolonSirasi(tanim.anahtar);
  for (const auto& satir : dosya.satirlar) {
    const bool var =
        tanim.anahtar.empty() ? rs.IlkKayit() : rs.KayitBul(tanim.anahtar, satir.degerler[std::size_t(anahtar)]);
    var ? rs.KayitDuzelt() : rs.KayitEkle();
    AlanlariYaz(rs, *TabloBul(tanim.ad), dosya, satir);
    Yaz(rs, satir.satirNo);
    ++(var ? sonuc.degisen : sonuc.eklenen);
  }
}

}  // namespace

Sonuc<AktarimSonucu> PersonelAktar(Oturum& o, std::string_view csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("sicil"), TabloBul("kimlik")}, "kod", AnahtarKurali::Tekil);
  if (!dosya) return dosya.Kusuru();
  return Kaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) {
    for (const auto& satir : dosya->satirlar) PersonelYaz(o.depo, *dosya, satir, sonuc);
  });
}

Sonuc<AktarimSonucu> AileAktar(Oturum& o, std::string_view csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("esco")}, "kod", AnahtarKurali::TekrarEder);
  if (!dosya) return dosya.Kusuru();
  return Kaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) { AileYaz(o.depo, *dosya, sonuc); });
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
    if (dosya->sorunlar.empty()) TanimYaz(o.depo, *tanim, *dosya, sonuc);
  });
}

}  // namespace belvani
