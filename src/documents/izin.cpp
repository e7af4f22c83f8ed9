#include "documents/izin.h"

#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "documents/listebelgesi.h"
#include "documents/sorgumetni.h"
#include "documents/turetilen.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

struct OzetSatiri {
  const IzinKisisi& kisi;
  int onceki = 0;
  int buYil = 0;
};

struct AySatiri {
  const IzinKisisi& kisi;
  IzinAyi ay;
};

struct YilSatiri {
  const IzinKisisi& kisi;
  std::array<int, 12> gunler{};
  int toplam = 0;
};

const Kolonlar<OzetSatiri> ozetKolonlari{
    {"T.C. No", 11, [](auto& s) { return s.kisi.tcno; }},
    {"Adı Soyadı", 30, [](auto& s) { return s.kisi.adSoyad; }},
    {"Giriş", 10, [](auto& s) { return s.kisi.girtar; }},
    {"Ö.İ.Gün", 7, [](auto& s) { return s.onceki; }, Toplanir},
    {"Bu Yıl", 7, [](auto& s) { return s.buYil; }, Toplanir},
    {"T.İ.Gün", 7, [](auto& s) { return s.onceki + s.buYil; }, Toplanir},
};

const Kolonlar<AySatiri> ayKolonlari{
    {"T.C. No", 11, [](auto& s) { return s.kisi.tcno; }},
    {"Adı Soyadı", 30, [](auto& s) { return s.kisi.adSoyad; }},
    {"Yıl", 4, [](auto& s) { return std::to_string(s.ay.yil); }},  // a text: no thousands mark
    {"Ay", 7, [](auto& s) { return std::string(AyAdi(s.ay.ay)); }},
    {"İ.Gün", 7, [](auto& s) { return s.ay.gun; }, Toplanir},
};

Kolonlar<YilSatiri> YilKolonlari() {
  Kolonlar<YilSatiri> kolonlar{
      {"T.C. No", 11, [](auto& s) { return s.kisi.tcno; }},
      {"Adı Soyadı", 30, [](auto& s) { return s.kisi.adSoyad; }},
  };
  for (std::size_t ay = 0; ay < AyAdlari.size(); ++ay)
    kolonlar.Ekle({std::string(AyAdlari[ay]), 7, [ay](auto& s) { return s.gunler[ay]; }, Toplanir});
  kolonlar.Ekle({"T.İ.Gün", 7, [](auto& s) { return s.toplam; }, Toplanir});
  return kolonlar;
}

Rapor OzetRaporu(const std::vector<IzinKisisi>& kisiler, int yil) {
  std::vector<OzetSatiri> satirlar;
  for (const auto& kisi : kisiler) {
    OzetSatiri& satir = satirlar.emplace_back(OzetSatiri{kisi});
    for (const auto& ay : kisi.aylar) (ay.yil == yil ? satir.buYil : satir.onceki) += ay.gun;
  }
  return RaporYap(ozetKolonlari, satirlar, 0);
}

Rapor AyRaporu(const std::vector<IzinKisisi>& kisiler) {
  std::vector<AySatiri> satirlar;
  for (const auto& kisi : kisiler)
    for (const auto& ay : kisi.aylar) satirlar.push_back({kisi, ay});
  return RaporYap(ayKolonlari, satirlar, 0);
}

Rapor YilRaporu(const std::vector<IzinKisisi>& kisiler, int yil) {
  std::vector<YilSatiri> satirlar;
  for (const auto& kisi : kisiler) {
    YilSatiri satir{kisi};
    for (const auto& ay : kisi.aylar) {
      if (ay.yil != yil) continue;
      satir.gunler[std::size_t(ay.ay - 1)] += ay.gun;
      satir.toplam += ay.gun;
    }
    if (satir.toplam > 0) satirlar.push_back(satir);
  }
  return RaporYap(YilKolonlari(), satirlar, 0);
}

Rapor TipRaporu(const std::vector<IzinKisisi>& kisiler, int yil, IzinRaporu tip) {
  switch (tip) {
    case IzinRaporu::Icmal:
      return OzetRaporu(kisiler, yil);
    case IzinRaporu::Personel:
      return AyRaporu(kisiler);
    case IzinRaporu::Donemsel:
      return YilRaporu(kisiler, yil);
  }
  return OzetRaporu(kisiler, yil);
}

// A month that is none comes from a damaged store only.
void AyEkle(IzinKisisi& kisi, const Komut& komut, int ilk) {
  IzinAyi ay{komut.TamSigan<int>(ilk), komut.TamSigan<int>(ilk + 1), komut.TamSigan<int>(ilk + 2)};
  if (ay.gun > 0 && ay.ay >= 1 && ay.ay <= 12) kisi.aylar.push_back(ay);
}

}  // namespace

std::vector<IzinKisisi> IzinleriOku(Motor& motor, int yil, const MetinAraligi& kod, Ilerleme* ilerleme) {
  SorguMetni sorgu(
      "select s.kod, s.adi, s.soyadi, s.girtar, k.tcno, u.yil, u.ay, u.gun from sicil s left join kimlik k on k.kod = "
      "s.kod left join (select kod, yil, ay, sum(ui) as gun from brd where yil <= ? and ui > 0 group by kod, yil, ay) "
      "u "
      "on u.kod = s.kod where 1 = 1",
      {std::int64_t(yil)});
  sorgu.Aralik("s.kod", kod);
  sorgu.Ekle(" order by s.kod, u.yil, u.ay");
  const auto komut = sorgu.Hazirla(motor);
  std::vector<IzinKisisi> kisiler;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    if (kisiler.empty() || kisiler.back().kod != komut->Metin(0)) {
      IzinKisisi& kisi = kisiler.emplace_back();
      Sicil sicil;
      KolonAl(*komut, 0, kisi.kod);
      KolonAl(*komut, 1, sicil.adi);
      KolonAl(*komut, 2, sicil.soyadi);
      KolonAl(*komut, 3, kisi.girtar);
      KolonAl(*komut, 4, kisi.tcno);
      kisi.adSoyad = AdSoyad(sicil);
    }
    AyEkle(kisiler.back(), *komut, 5);
  }
  return kisiler;
}

Rapor IzinListesi(const std::vector<IzinKisisi>& kisiler, int yil, IzinRaporu tip) {
  Rapor rapor = TipRaporu(kisiler, yil, tip);
  rapor.baslik = "Ücretli İzinler Listesi";
  rapor.ekranBasligi = rapor.baslik;
  rapor.ustSatirlar = {{.sol = std::string(IzinRaporAdlari[std::size_t(tip)]), .orta = std::to_string(yil)}};
  return rapor;
}

std::unique_ptr<Belge> IzinBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const IzinSecenegi& secenek,
                                   const BelgeYazisi& yazi) {
  const KagitYonu yon = secenek.tip == IzinRaporu::Donemsel ? KagitYonu::Yatay : KagitYonu::Dikey;
  const auto kisiler = IzinleriOku(kaynak.motor, secim.yil, secim.kod, kaynak.ilerleme);
  return ListeBelgesi(IzinListesi(kisiler, secim.yil, secenek.tip), yon, yazi, {}, kaynak.firma.unvan);
}

}  // namespace belvani
