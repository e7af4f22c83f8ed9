#include "printing/form/formmetni.h"

#include "core/asama.h"
#include "core/turkce.h"
#include "printing/form/metinformu.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

// Boxes may end on a rounded millimetre.
constexpr double Tolerans = 0.01;

int Kolon(double x) {
  return int((x - KagitSolu) / HarfMm + Tolerans) + 1;
}

int Satir(const Dikdortgen& yer) {
  return int((yer.y + std::min(yer.boy, SatirMm) / 2) / SatirMm + Tolerans) + 1;
}

void HucreleriKoy(MetinFormu& form, const FormAlani& alan, int harf) {
  const double en = alan.yer.en / alan.hucre;
  const int ilk = alan.hiza == MetinHizasi::Sag ? alan.hucre - harf : 0;
  std::string_view kalan = alan.deger;
  for (int i = 0; i < harf; ++i) {
    const std::string_view basamak = IlkHarfler(kalan, 1);
    kalan.remove_prefix(basamak.size());
    form.Koy({Satir(alan.yer), Kolon(alan.yer.x + (ilk + i + 0.5) * en), 1}, basamak);
  }
}

void AlanKoy(MetinFormu& form, const FormAlani& alan) {
  const int harf = int(HarfSayisi(alan.deger));
  if (alan.hucre > 0 && harf <= alan.hucre) return HucreleriKoy(form, alan, harf);
  MetinYeri yer{Satir(alan.yer), Kolon(alan.yer.x), std::max(1, int(alan.yer.en / HarfMm + Tolerans))};
  switch (alan.hiza) {
    case MetinHizasi::Sol:
      return form.Koy(yer, alan.deger);
    case MetinHizasi::Sag:
      return form.KoySagda(yer, harf <= yer.en ? alan.deger : std::string(std::size_t(yer.en), '#'));
    case MetinHizasi::Orta:
      yer.kolon += std::max(0, (yer.en - harf) / 2);
      return form.Koy(yer, alan.deger);
  }
}

}  // namespace

std::string FormMetni(const FormSayfasi& sayfa) {
  const std::string satir(std::size_t(sayfa.boy.en / HarfMm), ' ');
  std::string bos = satir;
  for (int i = 1; i < int(sayfa.boy.boy / SatirMm); ++i) bos += '\n' + satir;
  MetinFormu form(bos);
  for (const auto& alan : sayfa.alanlar) AlanKoy(form, alan);
  return form.Metin();
}

std::string FormMetni(const std::vector<FormSayfasi>& sayfalar, Ilerleme* ilerleme) {
  std::vector<std::string> metinler;
  metinler.reserve(sayfalar.size());
  Asama asama(ilerleme, sayfalar.size());
  for (const auto& sayfa : sayfalar) {
    asama.Adim();
    metinler.push_back(FormMetni(sayfa));
  }
  return SayfalariBirlestir(metinler);
}

}  // namespace belvani
