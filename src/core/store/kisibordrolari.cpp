#include "core/store/kisibordrolari.h"

#include "core/store/satirlar.h"
#include "core/tables/bordronosu.h"

namespace belvani {
namespace {

std::vector<int> Yillar(Motor& motor, int ilk, int son) {
  std::vector<int> yillar;
  const auto sonraki = motor.Hazirla("select min(yil) from brd where yil > ?");
  for (std::int64_t yil = ilk - 1;;) {
    sonraki->TamBagla(1, yil);
    if (!sonraki->Adim() || sonraki->Turu(0) == Komut::Tur::Null) return yillar;
    yil = sonraki->Tam(0);
    sonraki->Birak();
    if (yil > son) return yillar;
    yillar.push_back(int(yil));
  }
}

// `al` is given each row of the person, month by month, with these columns.
template <class Al>
void HerBordro(Motor& motor, const std::string& kolonlar, std::string_view kod, const AyAraligi& aylar, Al&& al) {
  const auto komut =
      motor.Hazirla("select " + kolonlar + " from brd where yil = ? and kod = ? and ay >= ? and ay <= ? order by ay, " +
                    std::string(BordroNosu));
  for (const int yil : Yillar(motor, aylar.ilkYil, aylar.sonYil)) {
    komut->TamBagla(1, yil);
    komut->MetinBagla(2, kod);
    komut->TamBagla(3, yil == aylar.ilkYil ? aylar.ilkAy : 0);
    komut->TamBagla(4, yil == aylar.sonYil ? aylar.sonAy : 255);
    while (komut->Adim()) al(*komut);
  }
}

}  // namespace

std::vector<Brd> KisininBordrolari(Motor& motor, std::string_view kod, const AyAraligi& aylar) {
  std::vector<Brd> kayitlar;
  HerBordro(motor, SecimListesi<Brd>(motor), kod, aylar,
            [&](const Komut& komut) { KayitAl(komut, 0, kayitlar.emplace_back()); });
  return kayitlar;
}

std::vector<std::int64_t> KisininBordroNumaralari(Motor& motor, std::string_view kod, const AyAraligi& aylar) {
  std::vector<std::int64_t> numaralar;
  HerBordro(motor, motor.KimlikKolonu(Brd::TabloAdi), kod, aylar,
            [&](const Komut& komut) { numaralar.push_back(komut.Tam(0)); });
  return numaralar;
}

}  // namespace belvani
