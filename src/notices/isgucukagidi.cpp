#include "notices/isgucukagidi.h"

#include "core/turkce.h"
#include "documents/listebelgesi.h"
#include "printing/form/satirliform.h"
#include "printing/form/tabloluform.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

constexpr std::string_view CizelgeBasligi = "İŞGÜCÜ ÇİZELGESİ";

// Millimetres of the page.
constexpr double En = 297 - 2 * KagitSolu;
constexpr double AdEni = 53;
constexpr double SayiEni = (En - AdEni) / 12;
constexpr double GrupEni = 3 * SayiEni;
constexpr double KutuBoyu = 9;
constexpr double BaslikBoyu = 6;
constexpr double SatirBoyu = 7.5;
constexpr double Ara = 5;

double Bas(FormKurucu& f, double y, const IsgucuCizelgesi& c) {
  constexpr double boy = 9, noEni = 90, donemEni = 30, ayEni = 25;
  const IsgucuBasligi& b = c.baslik;
  f.Bolum({KagitSolu, y, En, boy}, CizelgeBasligi, 13);
  y = f.EtiketliKutular({KagitSolu, y + boy}, KutuBoyu,
                        {{En - noEni - donemEni - ayEni, "Ünvan", EtiketUstte, "unvan", c.unvan},
                         {noEni, "İşyeri No", EtiketUstte, "isyerino", b.isyeriNo},
                         {donemEni, "Yıl", EtiketUstte, "yil", std::to_string(b.yil), MetinHizasi::Orta},
                         {ayEni, "Ay", EtiketUstte, "ay", std::string(AyAdi(b.ay)), MetinHizasi::Orta}});
  y = f.EtiketliKutular({KagitSolu, y}, KutuBoyu, {{En, "Adres", EtiketUstte, "adres", b.adres}});
  return f.EtiketliKutular({KagitSolu, y}, KutuBoyu,
                           {{En / 4, "Telefon", EtiketUstte, "telefon", b.telefon},
                            {En / 4, "Faks", EtiketUstte, "faks", b.faks},
                            {En / 4, "E-Mail", EtiketUstte, "eposta", b.eposta},
                            {En / 4, "Web", EtiketUstte, "web", b.web}});
}

void Baslik(FormKurucu& f, const Dikdortgen& kutu, std::string_view metin) {
  f.Kutu(kutu);
  f.Etiket(f.Icerisi(kutu), Kirp(metin), MetinHizasi::Orta);
}

// A block: groups of three numbers each under their heads, a line for each row.
struct Blok {
  std::string ad;
  std::string_view adBasligi;
  std::span<const std::string_view> gruplar;
  std::array<std::string_view, 3> sayiBasliklari;
  std::span<const std::string_view> satirAdlari;
  std::span<const IsgucuSatiri> satirlar;
};

double BlokCiz(FormKurucu& f, double y, const Blok& b) {
  Baslik(f, {KagitSolu, y, AdEni, 2 * BaslikBoyu}, b.adBasligi);
  for (std::size_t g = 0; g < b.gruplar.size(); ++g) {
    const double x = KagitSolu + AdEni + double(g) * GrupEni;
    Baslik(f, {x, y, GrupEni, BaslikBoyu}, b.gruplar[g]);
    for (std::size_t k = 0; k < b.sayiBasliklari.size(); ++k)
      Baslik(f, {x + double(k) * SayiEni, y + BaslikBoyu, SayiEni, BaslikBoyu}, b.sayiBasliklari[k]);
  }
  y += 2 * BaslikBoyu;
  for (std::size_t s = 0; s < b.satirlar.size(); ++s, y += SatirBoyu) {
    f.Kutu({KagitSolu, y, AdEni, SatirBoyu});
    f.Etiket(f.Icerisi({KagitSolu, y, AdEni, SatirBoyu}), Kirp(b.satirAdlari[s]));
    double x = KagitSolu + AdEni;
    for (std::size_t g = 0; g < b.gruplar.size(); ++g) {
      const IsgucuSayisi& sayi = b.satirlar[s][g];
      int kolon = 0;
      for (const std::int32_t deger : {sayi.erkek, sayi.kadin, sayi.toplam}) {
        const std::string ad =
            b.ad + std::to_string(s + 1) + "." + std::string(1, "ekt"[kolon++]) + std::to_string(g + 1);
        f.Kutu({x, y, SayiEni, SatirBoyu});
        f.Alan(ad, f.Icerisi({x, y, SayiEni, SatirBoyu}), deger == 0 ? "" : std::to_string(deger), MetinHizasi::Sag);
        x += SayiEni;
      }
    }
  }
  return y;
}

double Imza(FormKurucu& f, double y) {
  constexpr double boy = 22;
  f.Kutu({KagitSolu, y, En, boy});
  f.Etiket({KagitSolu + En - 90, y + 1, 85, 4}, "İŞVEREN / VEKİLİ", MetinHizasi::Orta);
  f.Etiket({KagitSolu + En - 90, y + 5, 85, 4}, "Adı Soyadı - Kaşe - İmza", MetinHizasi::Orta);
  f.Etiket({KagitSolu + KagitPayi, y + 1, 80, 4}, "Tarih : ..... / ..... / .........");
  return y + boy;
}

// ---- table

struct TabloSatiri {
  std::string_view ad;
  IsgucuSatiri gruplar;
};

const Kolonlar<TabloSatiri>& CizelgeKolonlari() {
  static const auto kolonlar = [] {
    Kolonlar<TabloSatiri> k{{"ack", "Açıklama", 34, [](auto& s) { return std::string(s.ad); }}};
    const std::pair<const char*, std::int32_t IsgucuSayisi::*> sayilar[] = {
        {"E.", &IsgucuSayisi::erkek}, {"K.", &IsgucuSayisi::kadin}, {"T.", &IsgucuSayisi::toplam}};
    for (std::size_t g = 0; g < IsgucuGruplari.size(); ++g)
      for (const auto& [baslik, uye] : sayilar)
        k.Ekle({KolonBasligi(std::string(Kirp(IsgucuGruplari[g])) + " " + baslik), 6,
                [g, uye = uye](auto& s) { return s.gruplar[g].*uye; }});
    return k;
  }();
  return kolonlar;
}

// The second block is of the people at the month's end, under whom its numbers stand.
Rapor IsgucuRaporu(const IsgucuCizelgesi& c) {
  std::vector<TabloSatiri> satirlar;
  std::vector<std::string> adlar;
  for (std::size_t s = 0; s < c.satirlar.size(); ++s) satirlar.push_back({IsgucuSatirlari[s], c.satirlar[s]});
  satirlar.push_back({IsgucuAyrimBasligi, {}});
  adlar.reserve(c.ayrimlar.size() * IsgucuAyrimGruplari.size());
  for (std::size_t s = 0; s < c.ayrimlar.size(); ++s)
    for (std::size_t g = 0; g < IsgucuAyrimGruplari.size(); ++g) {
      adlar.push_back(std::string(IsgucuAyrimSatirlari[s]) + ", " + std::string(IsgucuAyrimGruplari[g]));
      satirlar.push_back({adlar.back(), {}});
      satirlar.back().gruplar.back() = c.ayrimlar[s][g];
    }
  Rapor rapor = RaporYap(CizelgeKolonlari(), satirlar, 0);
  rapor.baslik = std::string(CizelgeBasligi);
  rapor.ekranBasligi = "İşgücü Çizelgesi";
  rapor.ustSatirlar = {{.sol = c.unvan, .orta = std::string(AyAdi(c.baslik.ay)) + " " + std::to_string(c.baslik.yil)},
                       {.sol = "İşyeri No : " + c.baslik.isyeriNo}};
  return rapor;
}

}  // namespace

FormSayfasi IsgucuCiz(const IsgucuCizelgesi& c) {
  FormKurucu f = KagitFormu(KagitYonu::Yatay);
  double y = Bas(f, KenarMm, c);
  y = BlokCiz(f, y + Ara, {"satir", "Açıklama", IsgucuGruplari, {"E.", "K.", "T."}, IsgucuSatirlari, c.satirlar});
  y = BlokCiz(f, y + Ara,
              {"ayrim",
               IsgucuAyrimBasligi,
               IsgucuAyrimGruplari,
               {"Erkek", "Kadın", "Toplam"},
               IsgucuAyrimSatirlari,
               c.ayrimlar});
  Imza(f, y + Ara);
  return f.Sayfa();
}

std::unique_ptr<Belge> IsgucuBelgesi(const IsgucuCizelgesi& cizelge) {
  return std::make_unique<TabloluForm>(
      BaskiAyari("İşgücü Çizelgesi", KagitYonu::Yatay), IsgucuRaporu(cizelge),
      FormYapanlar{.sayfalar = [cizelge](Ilerleme*) { return std::vector{IsgucuCiz(cizelge)}; }});
}

}  // namespace belvani
