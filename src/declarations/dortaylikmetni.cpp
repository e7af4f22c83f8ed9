#include "core/asama.h"
#include "core/turkce.h"
#include "declarations/bildirgekagidi.h"
#include "declarations/dortaylikkagidi.h"
#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "isyeri/taraflar.h"
#include "printing/form/metinformu.h"
#include "printing/form/metintablosu.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

using Satirlar = std::vector<std::string>;

constexpr int AyAdiEni = 7;  // "HAZİRAN", "TEMMUZ ", "AĞUSTOS"

// Letters of the columns before the months, of a month's days and earnings, and of the total's.
struct TabloEni {
  HucreEnleri ilk;
  int gun, kazanc, topGun, topKazanc;

  HucreEnleri Hepsi() const {
    HucreEnleri enler = ilk;
    for (int ay = 0; ay < DonemAyi; ++ay) enler.insert(enler.end(), {gun, kazanc});
    enler.insert(enler.end(), {topGun, topKazanc});
    return enler;
  }
  // Days and earnings of a month in one cell.
  HucreEnleri Birlesik() const {
    HucreEnleri enler = ilk;
    enler.insert(enler.end(), DonemAyi, gun + 1 + kazanc);
    enler.push_back(topGun + 1 + topKazanc);
    return enler;
  }
  int IlkEni() const {
    int en = int(ilk.size()) - 1;
    for (const int kolon : ilk) en += kolon;
    return en;
  }
};
const TabloEni KisiEni{{5, 13, 21, 5, 5}, 2, 12, 3, 12};
const TabloEni IcmalEni{{8}, 7, 17, 8, 12};

std::string SolVeSag(const std::string& sol, const std::string& sag) {
  return SagBosluk(sol, DortAylikEni - int(HarfSayisi(sag))) + sag;
}

// One letter a cell, the last one in the last; more letters than cells stand close together over all of them.
Satirlar Haneler(const std::string& deger, int hane) {
  const int harf = int(HarfSayisi(deger));
  if (harf > hane) return {SagBosluk(deger, 2 * hane - 1)};
  Satirlar haneler(std::size_t(hane - harf), " ");
  for (std::string_view kalan = deger; !kalan.empty(); kalan.remove_prefix(haneler.back().size()))
    haneler.emplace_back(IlkHarfler(kalan, 1));
  return haneler;
}

// The register number digit by digit, captions above it.
Satirlar IsyeriKutulari(const DortAylikKagidi& kagit) {
  constexpr struct {
    std::string_view baslik;
    int hane;
  } kutular[] = {{"M", 1},  {"İŞ KOLU", 4}, {"ÜNİTE", 4}, {"İŞYERİ SIRA NO", 7},
                 {"İL", 3}, {"İLÇE", 2},    {"KONT.", 2}, {"ARACI", 3}};
  constexpr std::size_t IlSirasi = 4;
  const auto gruplar = NumaraGruplari(kagit.firma);
  Satirlar satirlar(4);
  for (std::size_t i = 0; i < std::size(kutular); ++i) {
    const HucreEnleri enler(std::size_t(kutular[i].hane), 1);
    const Satirlar haneler = Haneler(i == gruplar.size() ? kagit.arac.kod
                                     : i == IlSirasi     ? IlKodu(kagit.firma)
                                                         : gruplar[i].deger,
                                     kutular[i].hane);
    const int en = std::max(2 * kutular[i].hane + 1, int(HarfSayisi(kutular[i].baslik))) + 2;
    satirlar[0] += Solda(kutular[i].baslik, en);
    satirlar[1] += Solda(CizgiSatiri({}, enler), en);
    satirlar[2] += Solda(HucreSatiri(haneler), en);
    satirlar[3] += Solda(CizgiSatiri(enler, {}), en);
  }
  return satirlar;
}

Satirlar Bas(const DortAylikKagidi& kagit, const std::string& sayfaAdi) {
  const Firma& firma = kagit.firma;
  const auto adres = FirmaAdresi(firma);
  Satirlar satirlar{
      SolVeSag(OrtalaMetin(DortAylikBasligi, DortAylikEni), sayfaAdi), "",
      SolVeSag("İŞVERENİN ADI / ÜNVANI : " + firma.unvan,
               "YILI : " + std::to_string(kagit.secim.yil) + "   DÖNEMİ : " + std::to_string(kagit.secim.donem)),
      SolVeSag("İŞYERİNİN ADRESİ       : " + adres[0] + " " + adres[1], "İŞ KOLU KODU : " + KagitSayisi(firma.iskodu)),
      SolVeSag("ARACININ ADI / ÜNVANI  : " + Araci(kagit.arac).unvan,
               "TOPLAM SAYFA : " + std::to_string(DortAylikSayfaSayisi(kagit)))};
  for (std::string& satir : IsyeriKutulari(kagit)) satirlar.push_back(std::move(satir));
  return satirlar;
}

// The captions in two lines, the months' names over their two columns.
void TabloBasi(Satirlar& satirlar, const DortAylikKagidi& kagit, const TabloEni& en, const Satirlar& ust,
               const Satirlar& alt) {
  Satirlar ustHucreler, altHucreler;
  for (std::size_t k = 0; k < en.ilk.size(); ++k) {
    ustHucreler.push_back(OrtaHucre(ust[k], en.ilk[k]));
    altHucreler.push_back(OrtaHucre(alt[k], en.ilk[k]));
  }
  for (std::size_t ay = 0; ay < DonemAyi; ++ay) {
    ustHucreler.push_back(OrtaHucre(SagBosluk(DonemAyAdi(kagit.secim, ay), AyAdiEni), en.gun + 1 + en.kazanc));
    altHucreler.insert(altHucreler.end(),
                       {OrtaHucre(en.gun < 3 ? "Gn" : "Gün", en.gun), OrtaHucre("Kazanç", en.kazanc)});
  }
  ustHucreler.push_back(OrtaHucre("TOPLAM", en.topGun + 1 + en.topKazanc));
  altHucreler.insert(altHucreler.end(), {OrtaHucre("Gün", en.topGun), OrtaHucre("Kazanç", en.topKazanc)});
  satirlar.push_back(CizgiSatiri({}, en.Birlesik()));
  satirlar.push_back(HucreSatiri(ustHucreler));
  satirlar.push_back(HucreSatiri(altHucreler));
  satirlar.push_back(CizgiSatiri(en.Hepsi(), en.Hepsi()));
}

std::string DonemSatiri(Satirlar hucreler, const DonemAylari& aylar, const TabloEni& en, int paraonda) {
  const auto ekle = [&](const GunVeKazanc& d, int gunEni, int kazancEni) {
    hucreler.push_back(SagHucre(KagitSayisi(d.gun), gunEni));
    hucreler.push_back(TutarHucresi(d.kazanc, kazancEni, paraonda));
  };
  for (const GunVeKazanc& ay : aylar) ekle(ay, en.gun, en.kazanc);
  ekle(aylar.Toplam(), en.topGun, en.topKazanc);
  return HucreSatiri(hucreler);
}

std::string GunVeAy(Tarih gun) {
  return gun.Bos() ? std::string() : IkiHane(gun.Gun()) + " " + IkiHane(gun.Ay());
}

std::string KisiSatiri(const DortAylikSatir& s, std::size_t sira, int paraonda) {
  const HucreEnleri& en = KisiEni.ilk;
  return DonemSatiri({SagHucre(std::to_string(sira), en[0]),
                      int(HarfSayisi(s.sskno)) > en[1] ? SagHucre(s.sskno, en[1]) : Solda(s.sskno, en[1]),
                      SagBosluk(s.adi + " " + s.soyadi, en[2]), SagBosluk(GunVeAy(s.girtar), en[3]),
                      SagBosluk(GunVeAy(s.ciktar), en[4])},
                     s.aylar, KisiEni, paraonda);
}

// The amounts alone: the columns of days are those of one person.
std::string ToplamSatiri(std::string_view etiket, const DonemAylari& toplam, int paraonda) {
  Satirlar hucreler{Sagda(etiket, KisiEni.IlkEni())};
  for (const GunVeKazanc& ay : toplam)
    hucreler.push_back(TutarHucresi(ay.kazanc, KisiEni.gun + 1 + KisiEni.kazanc, paraonda));
  hucreler.push_back(TutarHucresi(toplam.Toplam().kazanc, KisiEni.topGun + 1 + KisiEni.topKazanc, paraonda));
  return HucreSatiri(hucreler);
}

std::string Birlestir(const Satirlar& satirlar) {
  std::string metin;
  for (const std::string& satir : satirlar) {
    const std::string temiz = DenetimsizMetin(satir);
    metin += temiz.substr(0, temiz.find_last_not_of(' ') + 1);
    metin += '\n';
  }
  return metin;
}

std::string KisiSayfasi(const DortAylikKagidi& kagit, const DortAylikSayfasi& sayfa) {
  Satirlar satirlar = Bas(kagit, std::to_string(sayfa.no) + ". SAYFA");
  TabloBasi(satirlar, kagit, KisiEni, {"Sıra", "Sigorta", "Adı Soyadı", "Giriş", "Çıkış"},
            {"No", "Sicil No", "", "Tarih", "Tarih"});
  for (std::size_t i = sayfa.ilk; i < sayfa.son; ++i)
    satirlar.push_back(KisiSatiri(kagit.satirlar[i], i + 1, kagit.paraonda));
  for (std::size_t i = sayfa.son - sayfa.ilk; i < DortAylikSayfaKisisi; ++i)
    satirlar.push_back(
        DonemSatiri({SagBosluk("", KisiEni.ilk[0]), SagBosluk("", KisiEni.ilk[1]), SagBosluk("", KisiEni.ilk[2]),
                     SagBosluk("", KisiEni.ilk[3]), SagBosluk("", KisiEni.ilk[4])},
                    {}, KisiEni, kagit.paraonda));
  HucreEnleri toplamEni = KisiEni.Birlesik();
  toplamEni.erase(toplamEni.begin(), toplamEni.begin() + int(KisiEni.ilk.size()));
  toplamEni.insert(toplamEni.begin(), KisiEni.IlkEni());
  satirlar.push_back(CizgiSatiri(KisiEni.Hepsi(), toplamEni));
  satirlar.push_back(ToplamSatiri("BU SAYFANIN TOPLAMI ", sayfa.sayfa, kagit.paraonda));
  satirlar.push_back(ToplamSatiri("ÖNCEKİ SAYFALARDAN DEVİR ", sayfa.devir, kagit.paraonda));
  satirlar.push_back(ToplamSatiri("BU SAYFA DAHİL TOPLAM ", sayfa.dahil, kagit.paraonda));
  satirlar.push_back(CizgiSatiri(toplamEni, {}));
  return Birlestir(satirlar);
}

// The statement in lines of the page, and the boxes to sign in.
void BeyanVeImzalar(Satirlar& satirlar, const DortAylikKagidi& kagit) {
  const std::string beyan = DortAylikBeyani(DortAylikSayfaSayisi(kagit));
  std::string satir;
  for (std::string_view kalan = beyan; !kalan.empty();) {
    const std::string_view sozcuk = kalan.substr(0, kalan.find(' '));
    kalan.remove_prefix(std::min(kalan.size(), sozcuk.size() + 1));
    if (int(HarfSayisi(satir) + HarfSayisi(sozcuk)) + 1 > DortAylikEni) satirlar.push_back(std::exchange(satir, ""));
    satir += (satir.empty() ? "" : " ") + std::string(sozcuk);
  }
  satirlar.push_back(satir);
  constexpr int imzaBosu = 4;
  const HucreEnleri en{44, 44, 44};
  const auto hucreler = [&](std::string_view isveren, std::string_view muhasebeci, std::string_view tarih) {
    satirlar.push_back(HucreSatiri({OrtaHucre(isveren, en[0]), OrtaHucre(muhasebeci, en[1]), OrtaHucre(tarih, en[2])}));
  };
  satirlar.push_back(CizgiSatiri({}, en));
  hucreler("İŞVEREN VEYA ARACI / VEKİLİ", "SERBEST MUHASEBECİ / MALİ MÜŞAVİR", "ÜNİTEYE VERİLDİĞİ TARİH");
  hucreler("", kagit.muhasebeci.adsoyad, "");
  hucreler("", kagit.muhasebeci.sicil, "");
  for (int i = 0; i < imzaBosu; ++i) hucreler("", "", "");
  satirlar.push_back(CizgiSatiri(en, {}));
}

std::string IcmalSayfasi(const DortAylikKagidi& kagit, const std::vector<DortAylikSayfasi>& sayfalar, std::size_t ilk) {
  const std::size_t son = std::min(sayfalar.size(), ilk + IcmalSayfaSatiri);
  Satirlar satirlar = Bas(kagit, "İ C M A L");
  TabloBasi(satirlar, kagit, IcmalEni, {"Sayfa"}, {"No"});
  for (std::size_t i = ilk; i < son; ++i)
    satirlar.push_back(DonemSatiri({SagHucre(std::to_string(sayfalar[i].no), IcmalEni.ilk[0])}, sayfalar[i].sayfa,
                                   IcmalEni, kagit.paraonda));
  if (son == sayfalar.size()) {
    satirlar.push_back(CizgiSatiri(IcmalEni.Hepsi(), IcmalEni.Hepsi()));
    satirlar.push_back(
        DonemSatiri({SagBosluk("TOPLAM", IcmalEni.ilk[0])}, sayfalar.back().dahil, IcmalEni, kagit.paraonda));
  }
  satirlar.push_back(CizgiSatiri(IcmalEni.Hepsi(), {}));
  if (son == sayfalar.size()) BeyanVeImzalar(satirlar, kagit);
  return Birlestir(satirlar);
}

}  // namespace

std::string DortAyYazdir(const DortAylikKagidi& kagit, Ilerleme* ilerleme) {
  const auto bolumler = DortAylikBol(kagit.satirlar);
  std::vector<std::string> sayfalar;
  Asama asama(ilerleme, bolumler.size());
  for (const DortAylikSayfasi& bolum : bolumler) {
    asama.Adim();
    sayfalar.push_back(KisiSayfasi(kagit, bolum));
  }
  for (std::size_t ilk = 0; ilk < bolumler.size() && !kagit.satirlar.empty(); ilk += IcmalSayfaSatiri)
    sayfalar.push_back(IcmalSayfasi(kagit, bolumler, ilk));
  return SayfalariBirlestir(sayfalar);
}

}  // namespace belvani
