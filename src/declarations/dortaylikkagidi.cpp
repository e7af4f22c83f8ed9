#include "declarations/dortaylikkagidi.h"

#include <algorithm>

#include "core/asama.h"
#include "core/turkce.h"

namespace belvani {

std::vector<DortAylikSayfasi> DortAylikBol(const std::vector<DortAylikSatir>& satirlar, Ilerleme* ilerleme) {
  std::vector<DortAylikSayfasi> sayfalar;
  Asama asama(ilerleme);
  do {
    asama.Adim();
    DortAylikSayfasi sayfa;
    if (!sayfalar.empty()) {
      const DortAylikSayfasi& onceki = sayfalar.back();
      sayfa.no = onceki.no + 1;
      sayfa.ilk = onceki.son;
      sayfa.devir = onceki.dahil;
    }
    sayfa.son = std::min(satirlar.size(), sayfa.ilk + DortAylikSayfaKisisi);
    for (std::size_t i = sayfa.ilk; i < sayfa.son; ++i) sayfa.sayfa += satirlar[i].aylar;
    sayfa.dahil = sayfa.devir;
    sayfa.dahil += sayfa.sayfa;
    sayfalar.push_back(sayfa);
  } while (sayfalar.back().son < satirlar.size());
  return sayfalar;
}

int DortAylikSayfaSayisi(const DortAylikKagidi& kagit) {
  return std::max(1, int((kagit.satirlar.size() + DortAylikSayfaKisisi - 1) / DortAylikSayfaKisisi));
}

std::string DonemAyAdi(const DortAySecimi& secim, std::size_t sira) {
  return BuyukHarf(AyAdi(secim.IlkAy() + int(sira)));
}

std::string DortAylikBeyani(int sayfaSayisi) {
  return "Toplam " + std::to_string(sayfaSayisi) +
         " sayfadan oluşan bu bordrodaki gün sayıları ile kazançların işyeri defter, kayıt ve belgelerine uygun "
         "olduğunu beyan ve kabul ederiz.";
}

std::string DortAylikSayfaSozu(const DortAylikKagidi& kagit, int sayfa) {
  const bool icmal = sayfa > DortAylikSayfaSayisi(kagit);
  return (icmal ? "İ C M A L Sayfası İçin" : std::to_string(sayfa) + ". Sayfa İçin") +
         std::string("\nA4 Kağıdınızı yazıcınıza yatay olarak koyunuz");
}

}  // namespace belvani
