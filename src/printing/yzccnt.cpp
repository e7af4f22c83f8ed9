#include "printing/yzccnt.h"

#include <algorithm>

#include "core/turkce.h"

namespace belvani {

std::string Yinele(std::string_view harf, int adet) {
  std::string sonuc;
  for (int i = 0; i < adet; ++i) sonuc += harf;
  return sonuc;
}

std::string Solda(std::string_view metin, int n) {
  return std::string(metin) + Yinele(" ", n - int(HarfSayisi(metin)));
}

std::string Sagda(std::string_view metin, int n) {
  return Yinele(" ", n - int(HarfSayisi(metin))).append(metin);
}

std::string SagBosluk(std::string_view metin, int n) {
  return Solda(IlkHarfler(metin, std::size_t(std::max(n, 0))), n);
}

std::string SolBosluk(std::string_view metin, int n) {
  const std::size_t en = std::size_t(std::max(n, 0));
  const std::size_t harf = HarfSayisi(metin);
  if (harf > en) return std::string(metin.substr(IlkHarfler(metin, harf - en).size()));
  return Sagda(metin, n);
}

std::string TutarFormat(Tutar deger, int n, int ondalik, int gruplama) {
  std::string metin = SayiFormat(OndalikMetin(deger), ondalik, gruplama);
  return int(metin.size()) > n ? SayiFormat(OndalikMetin(deger), ondalik, 0) : metin;
}

std::string TutarAlan(Tutar deger, int n, int ondalik, int gruplama) {
  return SolBosluk(TutarFormat(deger, n, ondalik, gruplama), n);
}

int OrtaYeri(std::string_view metin, int n) {
  return std::max(n / 2 - int(HarfSayisi(metin)) / 2, 0);
}

std::string OrtalaMetin(std::string_view metin, int n) {
  return Yinele(" ", OrtaYeri(Kirp(metin), n)).append(Kirp(metin));
}

std::vector<std::string> SatirlaraBol(std::string_view metin, std::size_t n) {
  std::vector<std::string> satirlar;
  while (HarfSayisi(metin) > n) {
    const std::string_view sigan = IlkHarfler(metin, n + 1);
    const auto bosluk = sigan.rfind(' ');
    const auto kesim = bosluk == 0 || bosluk == sigan.npos ? IlkHarfler(metin, n).size() : bosluk;
    satirlar.emplace_back(Kirp(metin.substr(0, kesim)));
    metin = Kirp(metin.substr(kesim));
  }
  satirlar.emplace_back(metin);
  return satirlar;
}

void yzccnt::YzcKutu(double x1, double y1, double x2, double y2, double kalinlik) {
  const auto [sol, sag] = std::minmax(x1, x2);
  const auto [ust, alt] = std::minmax(y1, y2);
  tuval_.Kutu({sol, ust, sag - sol, alt - ust}, kalinlik);
}

void yzccnt::YzcCizgi(double x1, double y1, double x2, double y2, double kalinlik) {
  tuval_.Cizgi({x1, y1}, {x2, y2}, kalinlik);
}

void yzccnt::YzcYaz(std::string_view metin, double x, double y, double punto, YaziKalinligi kalinlik) {
  if (punto > 0) yazi_.punto = punto;
  yazi_.kalinlik = kalinlik;
  tuval_.Metin({x, y}, metin, yazi_);
}

void yzccnt::YzcHizali(std::string_view metin, double x, double y, double en, double punto, YaziKalinligi kalinlik,
                       MetinHizasi hiza) {
  if (punto > 0) yazi_.punto = punto;
  yazi_.kalinlik = kalinlik;
  if (hiza == MetinHizasi::Sol) return YzcYaz(SiganMetin(metin, en, yazi_), x, y, 0, kalinlik);
  const double metinEni = MetinEni(metin, yazi_);
  YzcYaz(metin, x - (hiza == MetinHizasi::Sag ? metinEni : metinEni / 2), y, 0, kalinlik);
}

}  // namespace belvani
