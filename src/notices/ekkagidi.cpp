#include "notices/ekkagidi.h"

#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

// Millimetres of the page, which lies on its side.
constexpr double En = 297 - 2 * KagitSolu;
constexpr double KutuBoyu = 9;
constexpr double SatirBoyu = 6.4;
constexpr double BaslikSatiri = 3.6;
constexpr double HucreBoyu = 5;
constexpr double HucrePayi = 1;  // between a row's frame and its cells

double Baslik(FormKurucu& f, double y, const EkTanimi& tanim) {
  constexpr double boy = 9;
  f.Bolum({KagitSolu, y, En, boy}, tanim.baslik, 13);
  return y + boy;
}

double IsyeriKutulari(FormKurucu& f, double y, const EkBasligi& b, const EkSayfasi& sayfa) {
  constexpr double kodEni = 40, bolgeEni = 80, sayfaEni = 40, isEni = 90;
  const Firma& firma = b.firma;
  const auto adres = FirmaAdresi(firma);
  const std::string sayfaNo = std::to_string(sayfa.no) + " / " + std::to_string(sayfa.sayfaSayisi);
  y = f.EtiketliKutular(
      {KagitSolu, y}, KutuBoyu,
      {{kodEni, "İş Kodu", EtiketUstte, "firma.iskodu",
        firma.iskodu == 0 ? std::string() : std::to_string(firma.iskodu)},
       {bolgeEni, "Bölge Çalışma No", EtiketUstte, "firma.bolcal", firma.bolcal},
       {En - kodEni - bolgeEni - sayfaEni, "Ait Olduğu Tarihler", EtiketUstte, "aralik", AralikMetni(b.aralik)},
       {sayfaEni, "Sayfa", EtiketUstte, "sayfa", sayfaNo, MetinHizasi::Orta}});
  y = f.EtiketliKutular({KagitSolu, y}, KutuBoyu,
                        {{En - isEni, "İşyerinin Ünvanı", EtiketUstte, "firma.unvan", firma.unvan},
                         {isEni, "İş Yerinde Yapılan Esas İş", EtiketUstte, "isi", b.isi}});
  return f.EtiketliKutular(
      {KagitSolu, y}, KutuBoyu,
      {{En / 2, "Adresi", EtiketUstte, "firma.adr1", adres[0]}, {En / 2, "", EtiketUstte, "firma.adr2", adres[1]}});
}

// The number stands on ruled lines: the next of them below `y`.
double IsyeriSicili(FormKurucu& f, double y, const EkBasligi& b) {
  constexpr double etiketEni = 50;
  const int satir = int(y / SatirMm) + 1;
  const int sonraki = IsyeriNumarasi(f, KagitSolu + etiketEni + 5, satir, b.firma, b.araciKodu);
  const double alt = sonraki * SatirMm;
  f.Kutu({KagitSolu, y, En, alt - y});
  f.Etiket({KagitSolu + KagitPayi, y, etiketEni, alt - y}, "İşyerinin SSK Sicil No");
  return alt;
}

double TabloBasi(FormKurucu& f, double y, const EkTanimi& tanim) {
  constexpr double boy = 3 * BaslikSatiri + 1;
  double x = KagitSolu;
  int no = 0;
  for (const EkKolonu& k : tanim.kolonlar) {
    const Dikdortgen kutu{x, y, k.en, boy};
    const Dikdortgen ic = f.Icerisi(kutu);
    f.Kutu(kutu);
    const std::string kutuNo = "(" + std::to_string(++no) + ")";
    const bool tekSatir = k.baslik2.empty();
    f.Etiket({ic.x, y + 0.5, ic.en, (tekSatir ? 2 : 1) * BaslikSatiri}, k.baslik1, MetinHizasi::Orta);
    if (!tekSatir) f.Etiket({ic.x, y + 0.5 + BaslikSatiri, ic.en, BaslikSatiri}, k.baslik2, MetinHizasi::Orta);
    f.Etiket({ic.x, y + 0.5 + 2 * BaslikSatiri, ic.en, BaslikSatiri}, kutuNo, MetinHizasi::Orta);
    x += k.en;
  }
  return y + boy;
}

void Hucre(FormKurucu& f, const Dikdortgen& kutu, const EkKolonu& kolon, const std::string& ad,
           const std::string& deger) {
  if (kolon.hucre == 0) return f.Alan(ad, f.Icerisi(kutu), deger, kolon.hiza);
  const double en = (kutu.en - 2 * HucrePayi) / kolon.hucre;
  f.Basamaklar(ad,
               {.x = kutu.x + HucrePayi,
                .y = kutu.y + (kutu.boy - HucreBoyu) / 2,
                .sayi = kolon.hucre,
                .en = en,
                .boy = HucreBoyu},
               deger);
}

// Every page has all its rows; those without a person stay blank.
double Kisiler(FormKurucu& f, double y, const EkTanimi& tanim, const EkSayfasi& sayfa) {
  std::vector<double> enler;
  for (const EkKolonu& k : tanim.kolonlar) enler.push_back(k.en);
  f.Tablo({KagitSolu, y}, enler, SatirBoyu, int(EkSayfaKisisi));
  for (std::size_t i = 0; i < EkSayfaKisisi; ++i) {
    const bool dolu = i < sayfa.satirlar.size();
    double x = KagitSolu;
    for (std::size_t k = 0; k < EkKolonSayisi; ++k) {
      const EkKolonu& kolon = tanim.kolonlar[k];
      const std::string deger = !dolu    ? std::string()
                                : k == 0 ? std::to_string(sayfa.ilk + i + 1)
                                         : sayfa.satirlar[i][k - 1];
      Hucre(f, {x, y, kolon.en, SatirBoyu}, kolon, "satir" + std::to_string(i + 1) + "." + std::to_string(k + 1),
            deger);
      x += kolon.en;
    }
    y += SatirBoyu;
  }
  return y;
}

double Anahtarlar(FormKurucu& f, double y, const EkTanimi& tanim) {
  constexpr double boy = 6 * BaslikSatiri;
  constexpr double anahtarEni = 75;
  double x = KagitSolu;
  for (const EkAnahtari& anahtar : tanim.anahtarlar) {
    const Dikdortgen kutu{x, y, anahtarEni, boy};
    const Dikdortgen ic = f.Icerisi(kutu);
    f.Kutu(kutu);
    f.Baslik({kutu.x, y + 0.6, kutu.en, BaslikSatiri}, anahtar.baslik, f.etiketYazisi.punto, MetinHizasi::Sol);
    for (std::size_t i = 0; i < anahtar.kodlar.size(); ++i) {
      const double satirY = y + 1.2 + double(i + 1) * BaslikSatiri;
      f.Etiket({ic.x + 2, satirY, 6, BaslikSatiri}, std::to_string(i + 1) + " -");
      f.Etiket({ic.x + 8, satirY, ic.en - 8, BaslikSatiri}, anahtar.kodlar[i]);
    }
    x += anahtarEni;
  }
  const Dikdortgen imza{x, y, KagitSolu + En - x, boy};
  f.Kutu(imza);
  const auto imzaSatiri = [&](int satir) {
    return Dikdortgen{imza.x + KagitPayi, y + 0.6 + satir * BaslikSatiri, imza.en - 2 * KagitPayi, BaslikSatiri};
  };
  f.Etiket(imzaSatiri(0), EkBeyani, MetinHizasi::Orta);
  f.Baslik(imzaSatiri(1), EkImzasi, f.etiketYazisi.punto);
  f.Etiket(imzaSatiri(2), EkImzaAciklamasi, MetinHizasi::Orta);
  f.Etiket(imzaSatiri(4), EkTarihi);
  return y + boy;
}

}  // namespace

FormSayfasi EkSayfasiCiz(const EkTanimi& tanim, const EkBasligi& baslik, const EkSayfasi& sayfa) {
  FormKurucu f = KagitFormu(KagitYonu::Yatay);
  double y = Baslik(f, KenarMm, tanim);
  y = IsyeriKutulari(f, y, baslik, sayfa);
  y = IsyeriSicili(f, y, baslik);
  y = TabloBasi(f, y, tanim);
  y = Kisiler(f, y, tanim, sayfa);
  y = Anahtarlar(f, y, tanim);
  f.Kutu({KagitSolu, KenarMm, En, y - KenarMm}, KagitKalinCizgi);
  return f.Sayfa();
}

}  // namespace belvani
