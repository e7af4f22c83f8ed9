#include <algorithm>

#include "core/turkce.h"
#include "declarations/bildirgekagidi.h"
#include "declarations/dortaylikkagidi.h"
#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "isyeri/taraflar.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

// Millimetres across the page; down it, lines (satirliform.h).
constexpr double En = A4(KagitYonu::Yatay).en - 2 * KagitSolu;
constexpr double BelgeEni = 70;
constexpr double SolEni = En - BelgeEni;
constexpr double BelgeX = KagitSolu + SolEni;
constexpr int BelgeSatiri = 7;
constexpr int ImzaSatiri = 8;

constexpr double ToplamGunEni = 11;
constexpr double ToplamKazancEni = 31;

// The two columns of each month and of the total, behind `ilk`.
std::vector<FormKolonu> DonemKolonlari(std::vector<FormKolonu> ilk, const std::vector<std::string>& aylar,
                                       double gunEni, double kazancEni) {
  static constexpr std::array<const char*, 2 * DonemAyi> adlar{"gun1", "kazanc1", "gun2", "kazanc2",
                                                               "gun3", "kazanc3", "gun4", "kazanc4"};
  for (std::size_t ay = 0; ay < aylar.size(); ++ay) {
    ilk.push_back({gunEni, aylar[ay], "Gün", adlar[2 * ay], MetinHizasi::Sag, 2});
    ilk.push_back({kazancEni, "", "Kazanç", adlar[2 * ay + 1], MetinHizasi::Sag});
  }
  ilk.push_back({ToplamGunEni, "TOPLAM", "Gün", "topgun", MetinHizasi::Sag, 2});
  ilk.push_back({ToplamKazancEni, "", "Kazanç", "topkazanc", MetinHizasi::Sag});
  return ilk;
}

// What all pages have in common.
struct Duzen {
  const DortAylikKagidi& kagit;
  std::vector<std::string> aylar;
  std::vector<FormKolonu> kisiler;  // columns of the people
  std::vector<FormKolonu> icmal;    // of the recapitulation
  int sayfaSayisi;

  static constexpr std::size_t KisiKolonu = 6;  // columns before the first month

  Duzen(const DortAylikKagidi& k, int sayfalar) : kagit(k), sayfaSayisi(sayfalar) {
    using enum MetinHizasi;
    constexpr double gunEni = 8;
    constexpr double kazancEni = 25;
    for (std::size_t ay = 0; ay < DonemAyi; ++ay) aylar.push_back(DonemAyAdi(k.secim, ay));
    const double kisiEni = En - DonemAyi * (gunEni + kazancEni) - ToplamGunEni - ToplamKazancEni;
    constexpr double siraEni = 9;
    constexpr double sicilEni = 25;
    constexpr double tarihEni = 12;
    const double adEni = (kisiEni - siraEni - sicilEni - 2 * tarihEni) / 2;
    kisiler = DonemKolonlari({{siraEni, "Sıra", "", "sira", Sag},
                              {sicilEni, "Sigorta Sicil No", "", "sskno"},
                              {adEni, "Adı", "", "adi"},
                              {adEni, "Soyadı", "", "soyadi"},
                              {tarihEni, "İşe Giriş", "Tarihi", "girtar", Orta},
                              {tarihEni, "Çıkış", "Tarihi", "ciktar", Orta}},
                             aylar, gunEni, kazancEni);
    constexpr double icmalGunEni = 16;
    constexpr double sayfaEni = 23;
    const double icmalKazancEni = (En - sayfaEni - ToplamGunEni - ToplamKazancEni) / DonemAyi - icmalGunEni;
    icmal = DonemKolonlari({{sayfaEni, "Sayfa No", "", "sayfano", Orta}}, aylar, icmalGunEni, icmalKazancEni);
  }
};

std::vector<std::string> DonemDegerleri(const DonemAylari& aylar, int paraonda) {
  std::vector<std::string> degerler;
  const auto ekle = [&](const GunVeKazanc& d) {
    degerler.push_back(KagitSayisi(d.gun));
    degerler.push_back(KagitTutari(d.kazanc, paraonda));
  };
  for (const GunVeKazanc& ay : aylar) ekle(ay);
  ekle(aylar.Toplam());
  return degerler;
}

// ---- head

// Year and period, business code, which page of how many; on the right.
void BelgeKutusu(FormKurucu& f, int satir, const Duzen& d, const std::string& sayfaAdi) {
  constexpr double yari = BelgeEni / 2;
  const DortAylikKagidi& kagit = d.kagit;
  f.SayfaAdi(SatirYeri(BelgeX, satir, BelgeEni, 3), sayfaAdi, 12);
  satir = Kutucuklar(f, BelgeX, satir + 3,
                     {{yari, "Yıl", 14, "yil", std::to_string(kagit.secim.yil)},
                      {yari, "Dönem", 14, "donem", std::to_string(kagit.secim.donem)}});
  satir = Kutucuklar(f, BelgeX, satir, {{BelgeEni, "Aylar", 14, "aylar", d.aylar.front() + " - " + d.aylar.back()}});
  satir = Kutucuklar(f, BelgeX, satir, {{BelgeEni, "İş Kolu Kodu", 24, "iskodu", KagitSayisi(kagit.firma.iskodu)}});
  Kutucuklar(f, BelgeX, satir, {{BelgeEni, "Toplam Sayfa", 24, "sayfasayisi", std::to_string(d.sayfaSayisi)}});
}

int Bas(FormKurucu& f, const Duzen& d, const std::string& sayfaAdi) {
  constexpr double etiketEni = 32;
  const Firma& firma = d.kagit.firma;
  int satir = KagitUstSatiri;
  BelgeKutusu(f, satir, d, sayfaAdi);
  f.Kutu(SatirYeri(KagitSolu, satir, SolEni, BelgeSatiri));
  f.Baslik(SatirYeri(KagitSolu, satir, SolEni, 2), DortAylikBasligi, 14);
  f.Etiket(SatirYeri(KagitSolu, satir + 2, SolEni),
           "(Malullük, yaşlılık ve ölüm sigortaları kollarına tabi sigortalılar için)", MetinHizasi::Orta);
  IsyeriNumarasi(f, KagitSolu + (SolEni - IsyeriNumarasiEni) / 2, satir + 3, firma, d.kagit.arac.kod);
  satir += BelgeSatiri;
  f.Bolum(SatirYeri(KagitSolu, satir, En), "I - İ Ş Y E R İ N E     A İ T    B İ L G İ L E R", 8);
  const auto adres = FirmaAdresi(firma);
  satir =
      Kutucuklar(f, KagitSolu, satir + 1, {{En, "İşverenin Adı / Ünvanı", etiketEni, "isveren.unvan", firma.unvan}});
  satir =
      Kutucuklar(f, KagitSolu, satir,
                 {{En, "İşyerinin Adresi", etiketEni, "isveren.adres", std::string(Kirp(adres[0] + " " + adres[1]))}});
  return Kutucuklar(f, KagitSolu, satir,
                    {{En, "Aracının Adı / Ünvanı", etiketEni, "araci.unvan", Araci(d.kagit.arac).unvan}});
}

// ---- people

std::vector<std::string> KisiDegerleri(const DortAylikSatir& s, std::size_t sira, int paraonda) {
  std::vector<std::string> degerler{std::to_string(sira), s.sskno, s.adi, s.soyadi, KagitTarihi(s.girtar),
                                    KagitTarihi(s.ciktar)};
  for (std::string& deger : DonemDegerleri(s.aylar, paraonda)) degerler.push_back(std::move(deger));
  return degerler;
}

// Sums behind the columns before the first month, which hold their caption.
int ToplamSatiri(FormKurucu& f, int satir, const std::vector<FormKolonu>& kolonlar, std::size_t ilkAy,
                 std::string_view etiket, const std::string& on, const DonemAylari& toplam, int paraonda) {
  const auto ayBasi = kolonlar.begin() + std::ptrdiff_t(ilkAy);
  const double etiketEni = ToplamEn({kolonlar.begin(), ayBasi});
  f.Kutu(SatirYeri(KagitSolu, satir, etiketEni));
  f.Etiket(SatirYeri(KagitSolu, satir, etiketEni - 3), etiket, MetinHizasi::Sag);
  const std::vector<FormKolonu> aylar(ayBasi, kolonlar.end());
  TabloSatirlari(f, KagitSolu + etiketEni, satir, aylar, 1);
  TabloDegerleri(f, KagitSolu + etiketEni, satir, aylar, on, DonemDegerleri(toplam, paraonda));
  return satir + 1;
}

FormSayfasi KisiSayfasi(const Duzen& d, const DortAylikSayfasi& sayfa) {
  FormKurucu f = KagitFormu(KagitYonu::Yatay);
  const int paraonda = d.kagit.paraonda;
  int satir = Bas(f, d, std::to_string(sayfa.no) + ". SAYFA");
  f.Bolum(SatirYeri(KagitSolu, satir, En), "II - D Ö N E M D E    Ç A L I Ş T I R I L A N     S İ G O R T A L I L A R",
          8);
  satir = TabloBasligi(f, KagitSolu, satir + 1, d.kisiler);
  TabloSatirlari(f, KagitSolu, satir, d.kisiler, int(DortAylikSayfaKisisi));
  for (std::size_t i = sayfa.ilk; i < sayfa.son; ++i)
    TabloDegerleri(f, KagitSolu, satir + int(i - sayfa.ilk), d.kisiler, "satir" + std::to_string(i + 1),
                   KisiDegerleri(d.kagit.satirlar[i], i + 1, paraonda));
  satir += int(DortAylikSayfaKisisi);
  const auto toplam = [&](std::string_view etiket, const std::string& on, const DonemAylari& aylar) {
    satir = ToplamSatiri(f, satir, d.kisiler, Duzen::KisiKolonu, etiket, on, aylar, paraonda);
  };
  toplam("BU SAYFANIN TOPLAMI", "sayfa", sayfa.sayfa);
  toplam("ÖNCEKİ SAYFALARDAN DEVİR", "devir", sayfa.devir);
  toplam("BU SAYFA DAHİL TOPLAM", "dahil", sayfa.dahil);
  f.Kutu(SatirYeri(KagitSolu, KagitUstSatiri, En, satir - KagitUstSatiri), KagitKalinCizgi);
  return f.Sayfa();
}

// ---- recapitulation

void Imza(FormKurucu& f, const Dikdortgen& kutu, std::string_view etiket) {
  f.Kutu(kutu);
  f.Etiket(f.Icerisi({kutu.x, kutu.y, kutu.en, SatirMm}), etiket, MetinHizasi::Orta);
}

int Imzalar(FormKurucu& f, int satir, const Duzen& d) {
  constexpr double imzaEni = En / 3;
  f.Kutu(SatirYeri(KagitSolu, satir, En));
  f.Etiket(f.Icerisi(SatirYeri(KagitSolu, satir, En)), DortAylikBeyani(d.sayfaSayisi));
  ++satir;
  Imza(f, SatirYeri(KagitSolu, satir, imzaEni, ImzaSatiri), "İŞVEREN VEYA ARACI / VEKİLİ");
  f.Kutu(SatirYeri(KagitSolu + imzaEni, satir, imzaEni, ImzaSatiri));
  MuhasebeciImzasi(f, f.Icerisi(SatirYeri(KagitSolu + imzaEni, satir, imzaEni)), d.kagit.muhasebeci);
  Imza(f, SatirYeri(KagitSolu + 2 * imzaEni, satir, imzaEni, ImzaSatiri), "ÜNİTEYE VERİLDİĞİ TARİH");
  return satir + ImzaSatiri;
}

// The lines of the pages from `ilk` on; the last sheet has the sums of all and is signed.
FormSayfasi IcmalSayfasi(const Duzen& d, const std::vector<DortAylikSayfasi>& sayfalar, std::size_t ilk) {
  FormKurucu f = KagitFormu(KagitYonu::Yatay);
  const std::size_t son = std::min(sayfalar.size(), ilk + IcmalSayfaSatiri);
  int satir = Bas(f, d, "İ C M A L");
  f.Bolum(SatirYeri(KagitSolu, satir, En), "III - S A Y F A L A R I N     İ C M A L İ", 8);
  satir = TabloBasligi(f, KagitSolu, satir + 1, d.icmal);
  TabloSatirlari(f, KagitSolu, satir, d.icmal, int(IcmalSayfaSatiri));
  for (std::size_t i = ilk; i < son; ++i) {
    const std::string no = std::to_string(sayfalar[i].no);
    std::vector<std::string> degerler{no};
    for (std::string& deger : DonemDegerleri(sayfalar[i].sayfa, d.kagit.paraonda)) degerler.push_back(std::move(deger));
    TabloDegerleri(f, KagitSolu, satir + int(i - ilk), d.icmal, "icmal" + no, degerler);
  }
  satir += int(IcmalSayfaSatiri);
  if (son == sayfalar.size()) {
    satir = ToplamSatiri(f, satir, d.icmal, 1, "GENEL TOPLAM", "toplam", sayfalar.back().dahil, d.kagit.paraonda);
    satir = Imzalar(f, satir, d);
  }
  f.Kutu(SatirYeri(KagitSolu, KagitUstSatiri, En, satir - KagitUstSatiri), KagitKalinCizgi);
  return f.Sayfa();
}

// What the pages are made of.
struct Form {
  Form(std::shared_ptr<const DortAylikKagidi> k, Ilerleme* ilerleme)
      : kagit(std::move(k)), bolumler(DortAylikBol(kagit->satirlar, ilerleme)), duzen(*kagit, int(bolumler.size())) {}

  std::size_t SayfaSayisi() const {
    const std::size_t icmal = kagit->satirlar.empty() ? 0 : (bolumler.size() + IcmalSayfaSatiri - 1) / IcmalSayfaSatiri;
    return bolumler.size() + icmal;
  }
  FormSayfasi Sayfa(std::size_t sira) const {
    if (sira < bolumler.size()) return KisiSayfasi(duzen, bolumler[sira]);
    return IcmalSayfasi(duzen, bolumler, (sira - bolumler.size()) * IcmalSayfaSatiri);
  }

  std::shared_ptr<const DortAylikKagidi> kagit;
  std::vector<DortAylikSayfasi> bolumler;
  Duzen duzen;
};

}  // namespace

FormSayfalari DortAylikSayfalari(std::shared_ptr<const DortAylikKagidi> kagit, Ilerleme* ilerleme) {
  const auto form = std::make_shared<const Form>(std::move(kagit), ilerleme);
  return {form->SayfaSayisi(), [form](std::size_t sira) { return form->Sayfa(sira); }};
}

}  // namespace belvani
