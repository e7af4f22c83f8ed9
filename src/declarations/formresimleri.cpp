#include "declarations/formresimleri.h"

#include <algorithm>

#include "core/tarih.h"
#include "isyeri/isyerinumarasi.h"
#include "isyeri/taraflar.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

// Upright; down the page lines (satirliform.h).
constexpr double En = A4(KagitYonu::Dikey).en - 2 * KagitSolu;
constexpr int NumaraSatiri = 5;
constexpr int ImzaSatiri = 8;

const std::vector<FormKolonu>& Kolonlar() {
  using enum MetinHizasi;
  static const std::vector<FormKolonu> kolonlar{
      {10, "Sıra", "", "sira", Sag},
      {26, "SSK Sicil No", "", "sskno"},
      {24, "T.C. Kimlik No", "", "tcno"},
      {39, "Adı", "", "adi"},
      {39, "Soyadı", "", "soyadi"},
      {17, "Çalıştığı", "Gün", "gun", Sag},
      {19, "Eksik Gün", "Sayısı", "eksikgun", Sag},
      {20, "Eksik Gün", "Nedeni", "sebep", Orta},
  };
  return kolonlar;
}

int Bas(FormKurucu& f, int satir, const EksikGunFormu& form, int sayfaNo, int sayfaSayisi) {
  f.Bolum(SatirYeri(KagitSolu, satir, En, 2), "SİGORTALILARIN EKSİK GÜN BİLDİRİM FORMU (EK-10)", 13);
  satir = Kutucuklar(f, KagitSolu, satir + 2,
                     {{En / 4, "Yıl", 20, "yil", std::to_string(form.yil)},
                      {En / 4, "Ay", 20, "ay", std::string(AyAdi(form.ay))},
                      {En / 4, "Sayfa No", 20, "sayfano", std::to_string(sayfaNo)},
                      {En / 4, "Toplam Sayfa", 20, "sayfasayisi", std::to_string(sayfaSayisi)}});
  f.Kutu(SatirYeri(KagitSolu, satir, En, NumaraSatiri));
  IsyeriNumarasi(f, KagitSolu + (En - IsyeriNumarasiEni) / 2, satir, form.firma, form.arac.kod);
  return Taraf(f, KagitSolu, satir + NumaraSatiri, En, "İŞVERENİN", "isveren", Isveren(form.firma));
}

int Kisiler(FormKurucu& f, int satir, const EksikGunFormu& form, std::size_t ilk) {
  const auto& kolonlar = Kolonlar();
  satir = TabloBasligi(f, KagitSolu, satir, kolonlar);
  const int alt = TabloSatirlari(f, KagitSolu, satir, kolonlar, int(EksikGunSayfaKisisi));
  const std::size_t son = std::min(form.kisiler.size(), ilk + EksikGunSayfaKisisi);
  for (std::size_t i = ilk; i < son; ++i) {
    const EksikGunKisisi& k = form.kisiler[i];
    const std::string sira = std::to_string(i + 1);
    TabloDegerleri(
        f, KagitSolu, satir + int(i - ilk), kolonlar, "kisi" + sira,
        {sira, k.sskno, k.tcno, k.adi, k.soyadi, std::to_string(k.gun), KagitSayisi(k.eksikGun), KagitSayisi(k.sebep)});
  }
  return alt;
}

int Imzalar(FormKurucu& f, int satir, const Muhasebeci& m) {
  f.Kutu(SatirYeri(KagitSolu, satir, En));
  f.Etiket(f.Icerisi(SatirYeri(KagitSolu, satir, En)),
           "Yukarıda yazılı sigortalıların eksik günlerinin gerçeğe uygun olduğunu beyan ederiz.");
  ++satir;
  f.Tablo({KagitSolu, satir * SatirMm}, {En / 2, En / 2}, ImzaSatiri * SatirMm, 1);
  f.Etiket(SatirYeri(KagitSolu, satir, En / 2), "İŞVEREN / VEKİLİ", MetinHizasi::Orta);
  MuhasebeciImzasi(f, SatirYeri(KagitSolu + En / 2, satir, En / 2), m);
  return satir + ImzaSatiri;
}

}  // namespace

std::vector<FormSayfasi> Ek10Resmi(const EksikGunFormu& form) {
  const std::size_t dolu = (form.kisiler.size() + EksikGunSayfaKisisi - 1) / EksikGunSayfaKisisi;
  const int sayfaSayisi = std::max(1, int(dolu));
  std::vector<FormSayfasi> sayfalar;
  for (int no = 1; no <= sayfaSayisi; ++no) {
    FormKurucu f = KagitFormu(KagitYonu::Dikey);
    int satir = Bas(f, KagitUstSatiri, form, no, sayfaSayisi);
    satir = Kisiler(f, satir, form, std::size_t(no - 1) * EksikGunSayfaKisisi);
    satir = Imzalar(f, satir, form.muhasebeci);
    f.Kutu(SatirYeri(KagitSolu, KagitUstSatiri, En, satir - KagitUstSatiri), KagitKalinCizgi);
    sayfalar.push_back(f.Sayfa());
  }
  return sayfalar;
}

}  // namespace belvani
