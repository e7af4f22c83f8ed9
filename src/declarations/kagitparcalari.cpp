#include "declarations/kagitparcalari.h"

#include <algorithm>
#include <cmath>

#include "core/turkce.h"
#include "declarations/bildirgekagidi.h"

namespace belvani {
namespace {

constexpr double BasamakEni = 5;
constexpr double BasamakArasi = 4;

std::string Dolusu(const std::string& ilk, const std::string& yoksa) {
  return Kirp(ilk).empty() ? yoksa : ilk;
}

Dikdortgen Icerisi(const Dikdortgen& kutu) {
  return {kutu.x + KagitPayi, kutu.y, kutu.en - 2 * KagitPayi, kutu.boy};
}

// Digits of the register number under one caption of one or two lines.
struct NumaraGrubu {
  std::string_view ustEtiket;
  std::string_view altEtiket;
  const char* ad;
  int basamak;
  std::string deger;
};

// The number of the unit has its new and its old half in one value.
void UniteEtiketleri(FormKurucu& f, double x, int satir) {
  f.Etiket(SatirYeri(x, satir, 2 * BasamakEni), "YENİ", MetinHizasi::Orta);
  f.Etiket(SatirYeri(x + 2 * BasamakEni, satir, 2 * BasamakEni), "ESKİ", MetinHizasi::Orta);
}

}  // namespace

FormKurucu KagitFormu(KagitYonu yon) {
  FormKurucu f(A4(yon));
  f.etiketYazisi = {.punto = 6.5};
  f.degerYazisi = {.punto = 8, .kalinlik = YaziKalinligi::Kalin};
  return f;
}

void Baslik(FormKurucu& f, const Dikdortgen& yer, std::string_view metin, double punto, MetinHizasi hiza) {
  const YaziBicimi once = f.etiketYazisi;
  f.etiketYazisi = {.punto = punto, .kalinlik = YaziKalinligi::Kalin};
  f.Etiket(Icerisi(yer), metin, hiza);
  f.etiketYazisi = once;
}

int Kutucuklar(FormKurucu& f, double x, int satir, const std::vector<Kutucuk>& kutucuklar) {
  for (const auto& k : kutucuklar) {
    const Dikdortgen kutu = SatirYeri(x, satir, k.en);
    const double degerX = k.etiketEni + 2 * KagitPayi;
    f.Kutu(kutu);
    f.Etiket({x + KagitPayi, kutu.y, k.etiketEni, kutu.boy}, k.etiket);
    f.Alan(k.ad, {x + degerX, kutu.y, k.en - degerX - KagitPayi, kutu.boy}, k.deger, k.hiza);
    x += k.en;
  }
  return satir + 1;
}

double ToplamEn(const std::vector<KagitKolonu>& kolonlar) {
  double en = 0;
  for (const auto& k : kolonlar) en += k.en;
  return en;
}

int TabloBasligi(FormKurucu& f, double x, int satir, const std::vector<KagitKolonu>& kolonlar) {
  int kapsanan = 0;  // columns below the last upper caption
  for (std::size_t i = 0; i < kolonlar.size(); ++i) {
    const KagitKolonu& k = kolonlar[i];
    const bool ayri = k.kapsam > 1 || kapsanan > 0;  // the lines of the caption have boxes of their own
    if (kapsanan == 0) {
      kapsanan = k.kapsam;
      const double en =
          ToplamEn({kolonlar.begin() + std::ptrdiff_t(i), kolonlar.begin() + std::ptrdiff_t(i) + kapsanan});
      f.Kutu(SatirYeri(x, satir, en, ayri ? 1 : 2));
      f.Etiket(Icerisi(SatirYeri(x, satir, en, k.altBaslik.empty() ? 2 : 1)), k.ustBaslik, MetinHizasi::Orta);
    }
    if (ayri) f.Kutu(SatirYeri(x, satir + 1, k.en));
    f.Etiket(Icerisi(SatirYeri(x, satir + 1, k.en)), k.altBaslik, MetinHizasi::Orta);
    --kapsanan;
    x += k.en;
  }
  return satir + 2;
}

void TabloDegerleri(FormKurucu& f, double x, int satir, const std::vector<KagitKolonu>& kolonlar, const std::string& on,
                    const std::vector<std::string>& degerler) {
  for (std::size_t i = 0; i < kolonlar.size(); ++i) {
    const KagitKolonu& k = kolonlar[i];
    if (i < degerler.size()) f.Alan(on + "." + k.ad, Icerisi(SatirYeri(x, satir, k.en)), degerler[i], k.hiza);
    x += k.en;
  }
}

int IsyeriNumarasi(FormKurucu& f, double x, int satir, const Firma& firma, const std::string& araciKodu) {
  const NumaraGrubu gruplar[] = {
      {"M", "", "firma.sektor", 1, firma.sektor},         {"İŞ KOLU", "", "firma.meslek", 4, firma.meslek},
      {"ÜNİTE KODU", "", "firma.sube", 4, firma.sube},    {"İŞYERİ SIRA NUMARASI", "", "firma.dosya", 7, firma.dosya},
      {"İL KODU", "", "firma.il", 3, IlKodu(firma)},      {"İLÇE", "KODU", "firma.ilce", 2, firma.ilce},
      {"Kont.", "No", "firma.kontrol", 2, firma.kontrol}, {"ARACI", "", "arac.kod", 3, araciKodu},
  };
  for (const auto& g : gruplar) {
    const double en = g.basamak * BasamakEni;
    const bool unite = std::string_view(g.ad) == "firma.sube";
    const bool tekSatir = g.altEtiket.empty() && !unite;
    f.Etiket(SatirYeri(x - 1, satir, en + 2, tekSatir ? 2 : 1), g.ustEtiket, MetinHizasi::Orta);
    f.Etiket(SatirYeri(x - 1, satir + 1, en + 2), g.altEtiket, MetinHizasi::Orta);
    if (unite) UniteEtiketleri(f, x, satir + 1);
    f.Basamaklar(g.ad, {.x = x, .y = (satir + 2) * SatirMm, .sayi = g.basamak, .en = BasamakEni, .boy = SatirMm * 1.25},
                 g.deger);
    x += en + BasamakArasi;
  }
  return satir + 4;
}

TarafBilgisi Isveren(const Firma& firma) {
  return {.unvan = firma.unvan,
          .adres = {firma.adr1, firma.adr2},
          .semt = firma.semt,
          .ilce = firma.adrilce,
          .sehir = firma.adril,
          .pk = firma.pk,
          .iletisim = Dolusu(firma.tel, firma.epos),
          .kimlikNo = Dolusu(firma.verno, firma.tckimlik)};
}

TarafBilgisi Araci(const Arac& arac) {
  return {.unvan = std::string(Kirp(arac.isim1 + " " + arac.isim2)),
          .adres = {arac.adr1, arac.adr2},
          .semt = arac.semt,
          .ilce = arac.ilce,
          .sehir = arac.il,
          .pk = arac.pk,
          .iletisim = Dolusu(arac.tel, arac.epos),
          .kimlikNo = Dolusu(arac.vergi, arac.tcno)};
}

int Taraf(FormKurucu& f, const Dikdortgen& ustSatir, std::string_view baslik, const std::string& on,
          const TarafBilgisi& taraf) {
  constexpr double etiketEni = 24;
  const double en = ustSatir.en;
  int satir = int(std::lround(ustSatir.y / SatirMm));
  f.Kutu(ustSatir);
  Baslik(f, ustSatir, baslik, 7);
  satir = Kutucuklar(f, ustSatir.x, satir + 1, {{en, "Adı Soyadı / Ünvanı", etiketEni, on + ".unvan", taraf.unvan}});
  satir = Kutucuklar(f, ustSatir.x, satir, {{en, "Adresi", etiketEni, on + ".adr1", taraf.adres[0]}});
  satir = Kutucuklar(f, ustSatir.x, satir, {{en, "", etiketEni, on + ".adr2", taraf.adres[1]}});
  satir = Kutucuklar(f, ustSatir.x, satir,
                     {{en / 2, "Semt", 9, on + ".semt", taraf.semt}, {en / 2, "Şehir", 9, on + ".sehir", taraf.sehir}});
  satir = Kutucuklar(f, ustSatir.x, satir,
                     {{en / 2, "İlçe", 9, on + ".ilce", taraf.ilce}, {en / 2, "P.Kodu", 9, on + ".pk", taraf.pk}});
  satir = Kutucuklar(f, ustSatir.x, satir, {{en, "Telefon / E-Posta", etiketEni, on + ".iletisim", taraf.iletisim}});
  return Kutucuklar(f, ustSatir.x, satir, {{en, "T.C. / Vergi No", etiketEni, on + ".kimlikno", taraf.kimlikNo}});
}

}  // namespace belvani
