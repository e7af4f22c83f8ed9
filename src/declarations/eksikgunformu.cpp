#include <algorithm>

#include "core/asama.h"
#include "declarations/bildirgekagidi.h"
#include "declarations/eksikgun.h"
#include "isyeri/isyerinumarasi.h"
#include "isyeri/taraflar.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

// Upright; down the page lines (satirliform.h).
constexpr double En = A4(KagitYonu::Dikey).en - 2 * KagitSolu;
constexpr double BelgeEni = 44;
constexpr double BelgeX = KagitSolu + En - BelgeEni;
constexpr int BaslikSatiri = 4;
constexpr int NumaraSatiri = 5;
constexpr int ImzaSatiri = 8;
constexpr std::size_t PrimKolonu = 4;

const std::vector<FormKolonu>& Kolonlar() {
  using enum MetinHizasi;
  static const std::vector<FormKolonu> kolonlar{
      {10, "Sıra", "", "sira", Sag},
      {25, "T.C. Kimlik No", "", "tcno"},
      {27, "Sigorta Sicil No", "", "sskno"},
      {50, "Adı-Soyadı", "", "adsoyad"},
      {25, "Prime Esas", "Günlük Kazancı", "prim", Sag},
      {20, "Eksik Bildirilen", "Gün Sayısı", "eksikgun", Sag},
      {15, "Bildirme", "Nedeni", "sebep", Orta},
      {En - 172, "Değerlendirme", "Sonucu", "sonuc", Orta},
  };
  return kolonlar;
}

int Bas(FormKurucu& f, const EksikGunFormu& form, int sayfaNo, int sayfaSayisi) {
  int satir = KagitUstSatiri;
  f.Kutu(SatirYeri(KagitSolu, satir, En - BelgeEni, BaslikSatiri));
  f.Baslik(SatirYeri(KagitSolu, satir, En - BelgeEni, BaslikSatiri), "SİGORTALILARIN EKSİK GÜN BİLDİRİM FORMU", 13);
  f.Bolum(SatirYeri(BelgeX, satir, BelgeEni), "EK-8", 9);
  satir = Kutucuklar(
      f, BelgeX, satir + 1,
      {{BelgeEni / 2, "Yıl", 8, "yil", std::to_string(form.yil)}, {BelgeEni / 2, "Ay", 8, "ay", IkiHane(form.ay)}});
  satir = Kutucuklar(f, BelgeX, satir, {{BelgeEni, "Sayfa No", 20, "sayfano", std::to_string(sayfaNo)}});
  satir = Kutucuklar(f, BelgeX, satir, {{BelgeEni, "Toplam Sayfa", 20, "sayfasayisi", std::to_string(sayfaSayisi)}});
  f.Kutu(SatirYeri(KagitSolu, satir, En, NumaraSatiri));
  IsyeriNumarasi(f, KagitSolu + (En - IsyeriNumarasiEni) / 2, satir, form.firma, form.arac.kod);
  return Taraf(f, KagitSolu, satir + NumaraSatiri, En, "İŞVERENİN", "isveren", Isveren(form.firma));
}

// The daily earnings of this page alone.
int SayfaToplami(FormKurucu& f, int satir, Tutar toplam, int paraonda) {
  const auto& kolonlar = Kolonlar();
  const double etiketEni = ToplamEn({kolonlar.begin(), kolonlar.begin() + PrimKolonu});
  const Dikdortgen deger = SatirYeri(KagitSolu + etiketEni, satir, kolonlar[PrimKolonu].en);
  f.Kutu(SatirYeri(KagitSolu, satir, En));
  f.Kutu(deger);
  f.Etiket(SatirYeri(KagitSolu, satir, etiketEni - 3), "SAYFA TOPLAMI", MetinHizasi::Sag);
  f.Alan("toplam.prim", f.Icerisi(deger), KagitTutari(toplam, paraonda), MetinHizasi::Sag);
  return satir + 1;
}

int Kisiler(FormKurucu& f, int satir, const EksikGunKagidi& kagit, std::size_t ilk) {
  const auto& kolonlar = Kolonlar();
  satir = TabloBasligi(f, KagitSolu, satir, kolonlar);
  const int alt = TabloSatirlari(f, KagitSolu, satir, kolonlar, int(EksikGunSayfaKisisi));
  const std::size_t son = std::min(kagit.primler.size(), ilk + EksikGunSayfaKisisi);
  Tutar toplam;
  for (std::size_t i = ilk; i < son; ++i) {
    const EksikGunKisisi& k = kagit.form.kisiler[i];
    const std::string sira = std::to_string(i + 1);
    TabloDegerleri(f, KagitSolu, satir + int(i - ilk), kolonlar, "kisi" + sira,
                   {sira, k.tcno, k.sskno, k.adi + " " + k.soyadi, KagitTutari(kagit.primler[i], kagit.paraonda),
                    KagitSayisi(k.eksikGun), KagitSayisi(k.sebep)});
    toplam += kagit.primler[i];
  }
  return SayfaToplami(f, alt, toplam, kagit.paraonda);
}

int Beyan(FormKurucu& f, int satir, const EksikGunFormu& form, int sayfaSayisi) {
  constexpr int beyanSatiri = 3;
  f.Bolum(SatirYeri(KagitSolu, satir, En), "BEYAN VE TAAHHÜTLER", 8);
  ++satir;
  f.Kutu(SatirYeri(KagitSolu, satir, En, beyanSatiri));
  f.Etiket(f.Icerisi(SatirYeri(KagitSolu, satir, En)),
           "Yukarıda kimlikleri yazılı sigortalıların eksik günlerinin karşılarında gösterilen nedenlerden ileri "
           "geldiğini,");
  f.Etiket(f.Icerisi(SatirYeri(KagitSolu, satir + 1, En)),
           "toplam " + std::to_string(sayfaSayisi) +
               " sayfadan oluşan bu formdaki bilgilerin işyeri defter, kayıt ve belgelerine uygun olduğunu,");
  f.Etiket(f.Icerisi(SatirYeri(KagitSolu, satir + 2, En)),
           "nedenleri gösteren belgelerin forma eklendiğini beyan ve taahhüt ederiz.");
  satir += beyanSatiri;
  f.Tablo({KagitSolu, satir * SatirMm}, {En / 3, En / 3, En / 3}, ImzaSatiri * SatirMm, 1);
  f.Etiket(SatirYeri(KagitSolu, satir, En / 3), "İŞVEREN / VEKİLİ", MetinHizasi::Orta);
  f.Etiket(SatirYeri(KagitSolu + En / 3, satir, En / 3), "ARACI", MetinHizasi::Orta);
  MuhasebeciImzasi(f, SatirYeri(KagitSolu + 2 * En / 3, satir, En / 3), form.muhasebeci);
  return satir + ImzaSatiri;
}

}  // namespace

std::vector<FormSayfasi> EksikGunSayfalari(const EksikGunKagidi& kagit, Ilerleme* ilerleme) {
  const std::size_t kisi = kagit.form.kisiler.size();
  const int sayfaSayisi = std::max(1, int((kisi + EksikGunSayfaKisisi - 1) / EksikGunSayfaKisisi));
  std::vector<FormSayfasi> sayfalar;
  Asama asama(ilerleme, std::size_t(sayfaSayisi));
  for (int no = 1; no <= sayfaSayisi; ++no) {
    asama.Adim();
    FormKurucu f = KagitFormu(KagitYonu::Dikey);
    int satir = Bas(f, kagit.form, no, sayfaSayisi);
    satir = Kisiler(f, satir, kagit, std::size_t(no - 1) * EksikGunSayfaKisisi);
    satir = Beyan(f, satir, kagit.form, sayfaSayisi);
    f.Kutu(SatirYeri(KagitSolu, KagitUstSatiri, En, satir - KagitUstSatiri), KagitKalinCizgi);
    sayfalar.push_back(f.Sayfa());
  }
  return sayfalar;
}

}  // namespace belvani
