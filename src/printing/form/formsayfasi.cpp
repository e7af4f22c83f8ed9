#include "printing/form/formsayfasi.h"

#include <algorithm>
#include <cassert>

#include "core/turkce.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr double UstEtiketBoyu = 3.6;
constexpr double UstEtiketPayi = 0.4;

void HucrelereYaz(const FormAlani& alan, Tuval& tuval) {
  std::string_view kalan = alan.deger;
  const int harf = int(HarfSayisi(kalan));
  const double en = alan.yer.en / alan.hucre;
  const int ilk = alan.hiza == MetinHizasi::Sag ? alan.hucre - harf : 0;
  for (int i = 0; i < harf; ++i) {
    const std::string_view basamak = IlkHarfler(kalan, 1);
    kalan.remove_prefix(basamak.size());
    MetinKutuya(tuval, {alan.yer.x + (ilk + i) * en, alan.yer.y, en, alan.yer.boy}, basamak, alan.yazi,
                MetinHizasi::Orta);
  }
}

void AlanCiz(const FormAlani& alan, Tuval& tuval) {
  if (alan.hucre > 0 && int(HarfSayisi(alan.deger)) <= alan.hucre) return HucrelereYaz(alan, tuval);
  MetinKutuya(tuval, alan.yer, alan.deger, alan.yazi, alan.hiza);
}

// All that pages of one frame have in common, as bytes: forms of many thousand pages are not compared with each other.
std::string CerceveAnahtari(const FormSayfasi& sayfa) {
  std::string anahtar;
  const auto ekle = [&](std::initializer_list<double> sayilar) {
    for (const double sayi : sayilar) anahtar.append(reinterpret_cast<const char*>(&sayi), sizeof sayi);
  };
  const auto yer = [&](const Dikdortgen& d) { ekle({d.x, d.y, d.en, d.boy}); };
  const auto metin = [&](const std::string& m) {
    ekle({double(m.size())});
    anahtar += m;
  };
  for (const auto& k : sayfa.kutular) yer(k.yer), ekle({k.kalinlik});
  anahtar += 'c';
  for (const auto& c : sayfa.cizgiler) ekle({c.bas.x, c.bas.y, c.son.x, c.son.y, c.kalinlik});
  anahtar += 'r';
  for (const auto& r : sayfa.resimler) yer(r.yer), metin(r.png);
  anahtar += 'y';
  for (const auto& y : sayfa.yazilar) {
    if (y.sayfanin) continue;
    yer(y.yer);
    ekle({y.yazi.punto, double(y.yazi.kalinlik), double(y.yazi.aile), double(y.yazi.durus), y.yazi.genislik,
          double(y.hiza)});
    metin(y.metin);
  }
  return anahtar;
}

// Letters without the control characters; a value has no blanks at its ends.
std::string TemizDeger(std::string_view deger) {
  return std::string(Kirp(DenetimsizMetin(deger)));
}

}  // namespace

void FormCiz(const FormSayfasi& sayfa, Tuval& tuval) {
  tuval.SayfaBasla(sayfa.boy);
  Tuval& kalip = tuval.Kalip(CerceveAnahtari(sayfa));
  yzccnt kalem(kalip);
  for (const auto& [yer, kalinlik] : sayfa.kutular)
    kalem.YzcKutu(yer.x, yer.y, yer.x + yer.en, yer.y + yer.boy, kalinlik);
  for (const auto& c : sayfa.cizgiler) kalem.YzcCizgi(c.bas.x, c.bas.y, c.son.x, c.son.y, c.kalinlik);
  for (const auto& r : sayfa.resimler) kalip.Resim(r.yer, r.png);
  for (const auto& y : sayfa.yazilar) MetinKutuya(y.sayfanin ? tuval : kalip, y.yer, y.metin, y.yazi, y.hiza);
  for (const auto& a : sayfa.alanlar) AlanCiz(a, tuval);
  tuval.SayfaBitir();
}

void FormKurucu::Kutu(const Dikdortgen& yer, double kalinlik) {
  sayfa_.kutular.push_back({yer, kalinlik});
}

void FormKurucu::Cizgi(Nokta bas, Nokta son, double kalinlik) {
  sayfa_.cizgiler.push_back({bas, son, kalinlik});
}

void FormKurucu::Resim(const Dikdortgen& yer, std::string_view png) {
  sayfa_.resimler.push_back({yer, std::string(png)});
}

void FormKurucu::Etiket(const Dikdortgen& yer, std::string_view metin, MetinHizasi hiza) {
  sayfa_.yazilar.push_back({yer, std::string(metin), etiketYazisi, hiza});
}

void FormKurucu::Alan(std::string_view ad, const Dikdortgen& yer, std::string_view deger, MetinHizasi hiza) {
  assert(std::ranges::none_of(sayfa_.alanlar, [&](const FormAlani& a) { return a.ad == ad; }));
  sayfa_.alanlar.push_back({std::string(ad), yer, TemizDeger(deger), degerYazisi, hiza});
}

void FormKurucu::Baslik(const Dikdortgen& kutu, std::string_view metin, double punto, MetinHizasi hiza) {
  const YaziBicimi yazi{.punto = punto, .kalinlik = YaziKalinligi::Kalin};
  sayfa_.yazilar.push_back({Icerisi(kutu), std::string(metin), yazi, hiza});
}

void FormKurucu::Bolum(const Dikdortgen& kutu, std::string_view metin, double punto, MetinHizasi hiza) {
  Kutu(kutu);
  Baslik(kutu, metin, punto, hiza);
}

void FormKurucu::SayfaAdi(const Dikdortgen& kutu, std::string_view metin, double punto) {
  Bolum(kutu, metin, punto);
  sayfa_.yazilar.back().sayfanin = true;
}

void FormKurucu::EtiketliCerceve(const Dikdortgen& kutu, std::string_view etiket) {
  Kutu(kutu);
  const Dikdortgen ic = Icerisi(kutu);
  Etiket({ic.x, ic.y + UstEtiketPayi, ic.en, UstEtiketBoyu}, etiket);
}

double FormKurucu::EtiketliKutular(Nokta solUst, double boy, const std::vector<EtiketliKutu>& kutular) {
  double x = solUst.x;
  for (const auto& k : kutular) {
    const Dikdortgen kutu{x, solUst.y, k.en, boy};
    const Dikdortgen ic = Icerisi(kutu);
    if (k.etiketEni == EtiketUstte) {
      const double ust = UstEtiketBoyu + UstEtiketPayi;
      EtiketliCerceve(kutu, k.etiket);
      Alan(k.ad, {ic.x, ic.y + ust, ic.en, boy - ust - UstEtiketPayi}, k.deger, k.hiza);
    } else {
      const double sol = k.etiketEni + pay;
      Kutu(kutu);
      Etiket({ic.x, ic.y, k.etiketEni, boy}, k.etiket);
      Alan(k.ad, {ic.x + sol, ic.y, ic.en - sol, boy}, k.deger, k.hiza);
    }
    x += k.en;
  }
  return solUst.y + boy;
}

void FormKurucu::Basamaklar(std::string_view ad, const HucreDizisi& hucreler, std::string_view deger,
                            MetinHizasi hiza) {
  const Dikdortgen tamami = hucreler.Tamami();
  Kutu(tamami);
  for (int i = 1; i < hucreler.sayi; ++i) {
    const double x = hucreler.x + i * hucreler.en;
    Cizgi({x, hucreler.y}, {x, hucreler.y + hucreler.boy});
  }
  Alan(ad, tamami, deger, hiza);
  sayfa_.alanlar.back().hucre = hucreler.sayi;
}

void FormKurucu::Isaret(std::string_view ad, const Dikdortgen& yer, bool isaretli) {
  Kutu(yer);
  Alan(ad, yer, isaretli ? "X" : "", MetinHizasi::Orta);
}

Dikdortgen FormKurucu::Tablo(Nokta solUst, const std::vector<double>& kolonEnleri, double satirBoyu, int satirSayisi) {
  Dikdortgen tamami{solUst.x, solUst.y, 0, satirBoyu * satirSayisi};
  for (const double en : kolonEnleri) {
    if (tamami.en > 0) Cizgi({solUst.x + tamami.en, tamami.y}, {solUst.x + tamami.en, tamami.y + tamami.boy});
    tamami.en += en;
  }
  for (int i = 1; i < satirSayisi; ++i) {
    const double y = solUst.y + i * satirBoyu;
    Cizgi({solUst.x, y}, {solUst.x + tamami.en, y});
  }
  Kutu(tamami);
  return tamami;
}

}  // namespace belvani
