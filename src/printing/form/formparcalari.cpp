#include "printing/form/formparcalari.h"

namespace belvani {
namespace {

constexpr double IsaretBoyu = 3.4;
constexpr double IsaretPayi = 0.6;  // below the box

}  // namespace

void BasamakliHucre(FormKurucu& f, const Dikdortgen& kutu, std::string_view etiket, const std::string& ad, int basamak,
                    std::string_view deger) {
  f.Kutu(kutu);
  const double hucreler = basamak * HucreEni;
  f.Etiket({kutu.x + f.pay, kutu.y, kutu.en - hucreler - 3 * f.pay, kutu.boy}, etiket);
  f.Basamaklar(ad,
               {.x = kutu.x + kutu.en - f.pay - hucreler,
                .y = kutu.y + (kutu.boy - HucreBoyu) / 2,
                .sayi = basamak,
                .en = HucreEni,
                .boy = HucreBoyu},
               deger);
}

double SoruKutusu(FormKurucu& f, const Dikdortgen& kutu, std::string_view etiket,
                  const std::vector<SoruSecenegi>& secenekler) {
  f.EtiketliCerceve(kutu, etiket);
  const double y = kutu.y + kutu.boy - IsaretBoyu - IsaretPayi;
  double x = kutu.x + f.pay;
  for (const SoruSecenegi& s : secenekler) {
    const double etiketEni = s.en - IsaretBoyu - 3;
    f.Etiket({x, y, etiketEni, IsaretBoyu}, s.etiket);
    f.Isaret(s.ad, {x + etiketEni + 0.5, y, IsaretBoyu, IsaretBoyu}, s.secili);
    x += s.en;
  }
  return x;
}

}  // namespace belvani
