#include "declarations/dortaylik.h"

#include "core/session/aracibilgi.h"
#include "core/store/izlenenokuma.h"
#include "core/turkce.h"
#include "declarations/dortaylikkagidi.h"
#include "documents/listebelgesi.h"
#include "documents/secimalanlari.h"
#include "documents/sorgumetni.h"
#include "documents/turetilen.h"
#include "printing/form/tabloluform.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

constexpr int TumSigortaKollari = 0;  // `sskdurum` of those whom the paper is for
constexpr int KatkiYili = 2004;

constexpr auto BrdKolonlari = std::tuple{brd::kod,  brd::ay, brd::ng, brd::ht,        brd::rt,
                                         brd::ui,   brd::mi, brd::ha, brd::sskmatrah, brd::sskmatrahisveren,
                                         brd::katki};
constexpr auto SicilKolonlari = std::tuple{sicil::sskno, sicil::adi, sicil::soyadi, sicil::girtar, sicil::ciktar};

SorguMetni Sorgu(const DortAySecimi& secim) {
  SorguMetni sorgu("select " + KolonListesi(BrdKolonlari, "b.") + ", " + KolonListesi(SicilKolonlari, "s.") +
                       " from brd b join sicil s on s.kod = b.kod where b.yil = ?",
                   {std::int64_t(secim.yil)});
  sorgu.Ekle(" and b.ay >= ?", std::int64_t(secim.IlkAy()));
  sorgu.Ekle(" and b.ay <= ?", std::int64_t(secim.SonAy()));
  sorgu.Ekle(" and coalesce(s.sskdurum, 0) = ?", std::int64_t(TumSigortaKollari));
  sorgu.Ekle(" order by length(coalesce(s.sskno, '')), (coalesce(s.sskno, '')) collate turkce, s.kod");
  return sorgu;
}

DortAylikSatir KisiSatiri(const Sicil& sicil, const DortAySecimi& secim) {
  const auto donemdeki = [&](Tarih gun) { return secim.Icinde(gun) ? gun : Tarih(); };
  return {.sskno = sicil.sskno,
          .adi = sicil.adi,
          .soyadi = sicil.soyadi,
          .girtar = donemdeki(sicil.girtar),
          .ciktar = donemdeki(sicil.ciktar)};
}

GunVeKazanc AyinDilimi(const Brd& brd, int yil) {
  return {GunToplami(brd), yil == KatkiYili ? brd.sskmatrahisveren + brd.katki : brd.sskmatrah};
}

Kolonlar<DortAylikSatir> ListeKolonlari() {
  constexpr int gunEni = 5;
  constexpr int kazancEni = 10;
  Kolonlar<DortAylikSatir> kolonlar{
      {"sskno", "SİCİL NO", 13, [](auto& s) { return s.sskno; }},
      {"adi", "ADI", 16, [](auto& s) { return s.adi; }},
      {"soyadi", "SOYADI", 16, [](auto& s) { return s.soyadi; }},
      {"girtar", "GİRİŞ TARİHİ", 10, [](auto& s) { return s.girtar; }},
      {"topgun", "T.GÜN", gunEni, [](auto& s) { return s.aylar.Toplam().gun; }, Toplanir},
      {"topkaz", "T.KAZANÇ", kazancEni, [](auto& s) { return s.aylar.Toplam().kazanc; }, Toplanir},
      {"ciktar", "ÇIKIŞ TARİHİ", 10, [](auto& s) { return s.ciktar; }},
  };
  for (std::size_t ay = 0; ay < DonemAyi; ++ay) {
    const std::string no = std::to_string(ay + 1);
    kolonlar.Ekle({("gun" + no).c_str(), no + ".GÜN", gunEni, [ay](auto& s) { return s.aylar[ay].gun; }, Toplanir});
    kolonlar.Ekle(
        {("kaz" + no).c_str(), no + ".KAZANÇ", kazancEni, [ay](auto& s) { return s.aylar[ay].kazanc; }, Toplanir});
  }
  return kolonlar;
}

Rapor Listesi(const DortAylikKagidi& kagit) {
  Rapor rapor = RaporYap(ListeKolonlari(), kagit.satirlar, kagit.paraonda);
  rapor.baslik = DortAylikBasligi;
  rapor.ekranBasligi = "Dört Aylık Sigorta Primleri Bordrosu";
  rapor.toplamEtiketi = "T O P L A M";
  rapor.ustSatirlar = {
      {.sol = kagit.firma.unvan, .sirket = true},
      {.sol = std::to_string(kagit.secim.yil) + " YILI " + BuyukHarf(DonemAdlari[std::size_t(kagit.secim.donem - 1)])}};
  return rapor;
}

}  // namespace

std::vector<AlanGrubu> DortAyAlanlari() {
  return {
      {"Dönem",
       {{Uye("yil", &DortAySecimi::yil), "Bordro Yılı", YilEki()},
        {Uye("donem", &DortAySecimi::donem),
         "Dönemi",
         {.liste = DonemAdlari, .listeTabani = 1, .komut = "--donem", .komutYardimi = "yılın dört aylık dönemi, 1-3"}}},
       2}};
}

GunVeKazanc& GunVeKazanc::operator+=(const GunVeKazanc& d) {
  gun += d.gun;
  kazanc += d.kazanc;
  return *this;
}

GunVeKazanc DonemAylari::Toplam() const {
  GunVeKazanc toplam;
  for (const GunVeKazanc& ay : *this) toplam += ay;
  return toplam;
}

DonemAylari& DonemAylari::operator+=(const DonemAylari& d) {
  for (std::size_t ay = 0; ay < size(); ++ay) (*this)[ay] += d[ay];
  return *this;
}

std::vector<DortAylikSatir> DortAyHesapla(Motor& motor, const DortAySecimi& secim, Ilerleme* ilerleme) {
  const auto komut = Sorgu(secim).Hazirla(motor);
  std::vector<DortAylikSatir> satirlar;
  std::string kod;
  Brd brd;
  Sicil sicil;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    const int sicilIlk = KolonlariAl(*komut, 0, BrdKolonlari, brd);
    if (satirlar.empty() || brd.kod != kod) {
      KolonlariAl(*komut, sicilIlk, SicilKolonlari, sicil);
      satirlar.push_back(KisiSatiri(sicil, secim));
      kod = brd.kod;
    }
    satirlar.back().aylar[std::size_t(brd.ay - secim.IlkAy())] += AyinDilimi(brd, secim.yil);
  }
  return satirlar;
}

std::unique_ptr<Belge> DortAylikBelgesi(const BelgeKaynagi& kaynak, const DortAySecimi& secim) {
  const auto kagit = std::make_shared<const DortAylikKagidi>(
      DortAylikKagidi{.secim = secim,
                      .firma = kaynak.firma,
                      .arac = AraciOku(kaynak.motor),
                      .muhasebeci = MuhasebeciOku(kaynak.sirket),
                      .satirlar = DortAyHesapla(kaynak.motor, secim, kaynak.ilerleme),
                      .paraonda = kaynak.firma.paraonda});
  return std::make_unique<TabloluForm>(
      BaskiAyari(DortAylikIsi, KagitYonu::Yatay), Listesi(*kagit),
      FormYapanlar{.sayfalar = [kagit](Ilerleme* i) { return DortAylikSayfalari(kagit, i); },
                   .metin = [kagit](Ilerleme* i) { return DortAyYazdir(*kagit, i); },
                   .sayfaSozu = [kagit](int sayfa) { return DortAylikSayfaSozu(*kagit, sayfa); }});
}

}  // namespace belvani
