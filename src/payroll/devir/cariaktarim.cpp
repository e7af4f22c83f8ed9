// Movements of the account out of a file.
#include "core/store/satirlar.h"
#include "payroll/devir/cari.h"
#include "payroll/devir/satirlar.h"

namespace belvani {
namespace {

std::optional<Deger> IslemHucresi(const AlanTanimi& alan, std::string_view metin, std::string& kusur) {
  if (alan.ad != cari::islem.ad) return std::nullopt;
  const auto islem = CariIslemOku(metin);
  if (!islem) kusur = "borcuna ise B, alacağına ise A olmalı";
  return islem ? Deger(std::int64_t(*islem)) : Deger(Null{});
}

class CariYazici {
 public:
  CariYazici(Motor& motor, AktarimDosyasi& dosya, AktarimSonucu& sonuc)
      : dosya_(dosya),
        sonuc_(sonuc),
        kisiler_(motor),
        hareketler_(motor, AlanEtiketi),
        ayni_(motor.Hazirla("select 1 from cari where kod = ? and tarih = ? and islem = ? and tutar = ? and ack = ? "
                            "limit 1")) {}

  Durum Yaz(const AktarimSatiri& satir) {
    const auto kod = kisiler_.KoduBul(dosya_, satir);
    DoluOlsun(satir, cari::tarih);
    DoluOlsun(satir, cari::tutar);
    if (!kod || !dosya_.sorunlar.empty()) return Tamam();
    Okunan<Cari> kayit;
    HucreleriKoy(kayit.simdi, dosya_, satir);
    kayit.simdi.kod = *kod;
    if (KayitliMi(kayit.simdi))
      sonuc_.uyarilar.push_back({.metin = "aynı hareket hesapta zaten vardı, bir daha eklendi",
                                 .kod = *kod,
                                 .satir = satir.satirNo,
                                 .derece = Derece::Uyari});
    ++sonuc_.eklenen;
    return SatirYaz(hareketler_, kayit, satir);
  }

 private:
  void DoluOlsun(const AktarimSatiri& satir, const AlanTanimi& alan) {
    const int sira = dosya_.KolonSirasi(alan.ad);
    if (sira >= 0 && NullMu(satir.degerler[std::size_t(sira)]) && !dosya_.Soylendi(satir.satirNo, alan.ad))
      dosya_.SorunEkle(satir, alan.ad, "boş bırakılamaz");
  }

  bool KayitliMi(const Cari& c) {
    ayni_->MetinBagla(1, c.kod);
    ayni_->MetinBagla(2, c.tarih.Iso());
    ayni_->TamBagla(3, c.islem);
    ayni_->TamBagla(4, c.tutar.Ham());
    ayni_->MetinBagla(5, c.ack);
    const bool var = ayni_->Adim();
    ayni_->Birak();
    return var;
  }

  AktarimDosyasi& dosya_;
  AktarimSonucu& sonuc_;
  DosyadakiKisiler kisiler_;
  Tablo<Cari> hareketler_;
  std::unique_ptr<Komut> ayni_;
};

}  // namespace

Sonuc<AktarimSonucu> CariAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("cari")}, "kod", AnahtarKurali::TekrarEder, IslemHucresi);
  if (!dosya) return dosya.Kusuru();
  for (const AlanTanimi& alan : {AlanTanimi(cari::tarih), AlanTanimi(cari::islem), AlanTanimi(cari::tutar)})
    dosya->KolonIste(alan.ad);
  return AktarimiKaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) -> Durum {
    CariYazici yazici(o.depo.db.IcMotor(), *dosya, sonuc);
    for (const AktarimSatiri& satir : dosya->satirlar)
      if (Durum d = yazici.Yaz(satir); !d) return d;
    return Tamam();
  });
}

}  // namespace belvani
